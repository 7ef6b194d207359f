#include "store/history.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace velmora {

namespace {

using testing::ElementsAre;

/// A history in a temporary directory, and visits with different ids.
class RecordsTest : public testing::Test {
protected:
    static MissionRecord visit(const std::string& id, double seconds, bool demo = false) {
        MissionRecord record;
        record.id = id;
        record.start = record.end = dateFromSeconds(seconds);
        record.demo = demo;
        return record;
    }
    static std::vector<std::string> idsOf(const History& history) {
        std::vector<std::string> ids;
        for (const HistoryEntry& entry : history.entries())
            ids.push_back(entry.record->id);
        return ids;
    }
    std::vector<std::string> idsOnFile() {
        files.flush(std::chrono::minutes(1));
        DataFiles again{QDir(home.path())};
        return idsOf(History(again));
    }
    RecordKey keyOf(std::size_t index) const { return history.entries().at(index).key; }

    QTemporaryDir home;
    DataFiles files{QDir(home.path())};
    History history{files};
};

TEST_F(RecordsTest, EveryChangeIsSaved) {
    history.add({visit("b", 20, true), visit("a", 10)});
    history.add({visit("c", 30)});
    EXPECT_THAT(idsOnFile(), ElementsAre("c", "b", "a"));
    history.clearDemo();
    EXPECT_THAT(idsOnFile(), ElementsAre("c", "a"));
    history.remove(keyOf(0));
    EXPECT_THAT(idsOnFile(), ElementsAre("a"));
}

TEST_F(RecordsTest, ARestoredRecordIsWhereItWas) {
    history.add({visit("d", 10), visit("c", 10), visit("b", 20), visit("a", 10)}); // not in order of time
    for (std::size_t index = 0; index < 4; ++index) {
        history.restore(history.remove(keyOf(index)).value());
        EXPECT_THAT(idsOnFile(), ElementsAre("d", "c", "b", "a")) << index;
    }
    auto removed = history.remove(keyOf(1)).value();
    history.add({visit("new", 30, true)});
    history.remove(keyOf(2));
    history.restore(std::move(removed));
    EXPECT_THAT(idsOf(history), ElementsAre("new", "d", "c", "a"));
}

TEST_F(RecordsTest, AKeyIdentifiesItsRecordAfterEveryChange) {
    history.add({visit("same", 20), visit("same", 10)});
    const RecordKey older = keyOf(1);
    auto removed = history.remove(older);
    ASSERT_TRUE(removed);
    EXPECT_EQ(history.find(older), nullptr);
    EXPECT_FALSE(history.remove(older));
    history.add({visit("new", 30)});
    EXPECT_NE(keyOf(0), older);
    history.restore(std::move(*removed));
    EXPECT_EQ(keyOf(2), older);
    EXPECT_EQ(history.find(older)->record->start, dateFromSeconds(10));
}

} // namespace

} // namespace velmora
