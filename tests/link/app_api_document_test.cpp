#include "link_fixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

namespace velmora {

namespace {

const QString documentName = QStringLiteral("APP_API.md");
const QString exampleName = QStringLiteral("app_api_state.json");

QSet<QString> keysIn(const QJsonValue& value) {
    QSet<QString> keys;
    for (const QJsonValue item : value.toArray())
        keys += keysIn(item);
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member)
        keys += keysIn(member.value()) << member.key();
    return keys;
}

} // namespace

TEST(AppApiDocument, TheExampleIsAStateWithEveryField) {
    const auto example = decode<LiveState>(contentOf(exampleName).toStdString(), KeyStyle::snakeCase);
    ASSERT_TRUE(example) << example.error;
    const LiveState& state = *example.value;
    EXPECT_TRUE(state.missionId && state.missionStart && state.approvalDeadline && state.visitor);
    EXPECT_TRUE(contentOf(documentName).contains("```json\n" + contentOf(exampleName) + "```"));
}

TEST(AppApiDocument, EveryKeyAndEveryRawValueIsExplained) {
    const QString text = QString::fromUtf8(contentOf(documentName));
    for (const QString& key : keysIn(QJsonDocument::fromJson(contentOf(exampleName)).object()))
        EXPECT_TRUE(text.contains("| `" + key + "` |")) << key.toStdString();
    const auto explains = [&](const auto& rawValues) {
        for (const auto& [value, raw] : rawValues)
            EXPECT_TRUE(text.contains("`\"" + QString::fromStdString(std::string(raw)) + "\"`")) << raw;
    };
    explains(rawValuesOf<Phase>);
    explains(rawValuesOf<Notice::Level>);
    explains(rawValuesOf<TrackingMode>);
    explains(rawValuesOf<Command>);
}

} // namespace velmora
