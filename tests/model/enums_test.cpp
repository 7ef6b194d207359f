#include "model/live_state.h"

#include <gmock/gmock.h>

namespace velmora {

namespace {

template <class Enum>
std::vector<std::string_view> rawValues() {
    std::vector<std::string_view> texts;
    for (const auto& [value, text] : rawValuesOf<Enum>) {
        EXPECT_EQ(static_cast<std::size_t>(value), texts.size()) << text << " is out of the cases' order";
        EXPECT_EQ(fromRawValue<Enum>(rawValue(value)), value);
        texts.push_back(text);
    }
    return texts;
}

template <class Enum>
std::vector<Enum> casesWith(bool (*holds)(Enum)) {
    std::vector<Enum> cases;
    for (const auto& [value, text] : rawValuesOf<Enum>)
        if (holds(value))
            cases.push_back(value);
    return cases;
}

} // namespace

using testing::ElementsAre;

TEST(Enums, RawValuesAreTheTextsOfFilesAndNetworkInCaseOrder) {
    EXPECT_THAT(rawValues<Phase>(), ElementsAre("docked", "awaiting_approval", "launching", "en_route",
                                                "following", "holding", "returning", "landing"));
    EXPECT_THAT(rawValues<Outcome>(),
                ElementsAre("Visitor left your grounds", "You sent the drone home",
                            "Came home on low battery", "You landed the drone", "You ignored the alert",
                            "Alert expired \u2014 drone stayed docked", "Logged while disarmed",
                            "Too windy to fly \u2014 drone stayed docked"));
    EXPECT_THAT(rawValues<Notice::Level>(), ElementsAre("info", "good", "caution", "alert"));
    EXPECT_THAT(rawValues<TrackingMode>(), ElementsAre("own", "native"));
    EXPECT_THAT(rawValues<Section>(), ElementsAre("overview", "live", "history", "cameras", "settings"));
    EXPECT_THAT(rawValues<Scenario>(), ElementsAre("driveway", "garden", "front"));
    EXPECT_THAT(rawValues<Command>(), ElementsAre("approve", "ignore", "hold", "resume", "return", "land"));
    for (const char* unknown : {"", "Docked", "docked ", "awaitingApproval"})
        EXPECT_FALSE(fromRawValue<Phase>(unknown)) << unknown;
}

TEST(Enums, SixPhasesAreAirborneAndFourOutcomesFlew) {
    EXPECT_THAT(casesWith(airborne), ElementsAre(Phase::launching, Phase::enRoute, Phase::following,
                                                 Phase::holding, Phase::returning, Phase::landing));
    EXPECT_THAT(casesWith(flew), ElementsAre(Outcome::visitorLeft, Outcome::returnedByYou,
                                             Outcome::lowBattery, Outcome::landedByYou));
}

} // namespace velmora
