#include "ui/served_fixture.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTextDocument>

#include <set>

namespace velmora {

namespace {

const std::string markUp =
    "<b>Gate</b><img src='file:///etc/passwd'><a href='http://example.org'>&lt;in&gt;</a>";
const std::string tricks =
    "../..//%1 %n &Launch \x1b[2J\x07\x01\t\r\n$(reboot) \u202Egate\u202C \u05E9\u05DC";

/// Texts from a server and from records that contain mark-up and control characters.
class HostileTextTest : public ServedTest {
protected:
    LiveState hostile(Phase phase, const std::string& text) const {
        LiveState state = mission(phase);
        state.missionId = state.site.name = state.site.planImage = state.trackingMode = text;
        for (CameraInfo& camera : state.site.cameras)
            camera.id = camera.name = camera.snapshot = text;
        state.visitor->label = state.visitor->cameraId = text;
        state.notices.assign(3, {Uuid::fromRandomBits(7, 7), now, text, Notice::Level::alert});
        return state;
    }
    /// Expects that no label or tooltip renders mark-up and that no text creates a shortcut.
    void expectPlain(const std::string& where) {
        EXPECT_FALSE(window().grab().isNull());
        for (const QLabel* label : window().findChildren<QLabel*>())
            EXPECT_TRUE(label->textFormat() == Qt::PlainText || !Qt::mightBeRichText(label->text())) << where;
        for (const auto* button : window().findChildren<QAbstractButton*>())
            EXPECT_TRUE(button->shortcut().isEmpty()) << where << ": " << button->text().toStdString();
        for (const QWidget* widget : window().findChildren<QWidget*>()) {
            if (!Qt::mightBeRichText(widget->toolTip()))
                continue;
            QTextDocument shown;
            shown.setHtml(widget->toolTip());
            richToolTips.insert(shown.toPlainText().toStdString());
        }
    }
    void expectSectionsPlain(const std::string& when) {
        for (const auto& [section, id] : rawValuesOf<Section>) {
            store().setSection(section);
            settle();
            expectPlain(when + ", " + std::string(id));
        }
    }

    std::set<std::string> richToolTips; ///< as displayed
};

TEST_F(HostileTextTest, TextFromAServerOrARecordIsShownLiterally) {
    const std::string longest(900, 'W');
    std::vector<MissionRecord> history;
    for (const std::string& text : {markUp, tricks, longest, markUp + longest}) {
        history.push_back(record(text, Outcome::visitorLeft, 10));
        history.back().cameraName = history.back().label = history.back().snapshot = text;
        history.back().notices = hostile(Phase::following, text).notices;
    }
    records(history);
    SetUp();
    for (std::size_t i = 0; i < history.size(); ++i) {
        const std::string text = history[i].label, when = text.substr(0, 20);
        store().openRecord(store().history()[i].key);
        serve(hostile(Phase::following, text));
        expectSectionsPlain(when);
        serve(hostile(Phase::awaitingApproval, text));
        ASSERT_TRUE(waitUntil([&] { return shows("Launch drone"); }));
        expectPlain(when + ", alert");
    }
    EXPECT_FALSE(richToolTips.empty());
    for (const std::string& text : richToolTips)
        EXPECT_TRUE(text.find("<b>Gate</b><img") != std::string::npos) << text;
}

TEST_F(HostileTextTest, DrawsASiteThatChangesWithEveryPoll) {
    window();
    for (int i = 0; i < 25; ++i) {
        LiveState state = mission(i % 2 == 0 ? Phase::following : Phase::docked);
        state.site.size = {1.0 + i * i * 27.0, 100'000.0 / (1 + i)};
        state.site.boundary.assign(std::size_t(1 + i % 4), {-50.0 * i, 1e5});
        state.site.cameras.resize(std::size_t(i % 7 == 0 ? 100 : i % 5),
                                  {"c", "Gate", {1e9, -1e9}, 1e6, "", true});
        state.drone.trail.assign(std::size_t(i) * 400, {double(i), 7});
        store().setSection(rawValuesOf<Section>[std::size_t(i) % 5].first);
        serve(state);
        EXPECT_FALSE(window().grab().isNull());
        EXPECT_EQ(live(), state);
    }
}

} // namespace

} // namespace velmora
