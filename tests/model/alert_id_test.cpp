#include "model/live_state.h"

#include <gtest/gtest.h>

namespace velmora {

namespace {

const Date detected = dateFromSeconds(1'700'000'000);
const AlertId noId{{}, detected, detected + Seconds{60}, "front"};

AlertId withId(AlertId alert, const char* id) {
    alert.missionId = id;
    return alert;
}

/// The alert, and others that differ from it in one field without the mission id.
std::vector<AlertId> variantsOf(const AlertId& alert) {
    std::vector<AlertId> variants(6, alert);
    variants[1].start = detected + Seconds{1};
    variants[2].start.reset();
    variants[3].deadline = detected + Seconds{61};
    variants[4].deadline.reset();
    variants[5].cameraId = "garden";
    return variants;
}

} // namespace

TEST(AlertIdTest, WithoutMissionIdsTheRestMustBeEqual) {
    const auto variants = variantsOf(noId);
    for (std::size_t one = 0; one < variants.size(); ++one)
        for (std::size_t other = 0; other < variants.size(); ++other) {
            EXPECT_EQ(variants[one] == variants[other], one == other) << one << ' ' << other;
            EXPECT_EQ(isSameAlert(variants[one], variants[other]), one == other);
        }
}

TEST(AlertIdTest, AMissionIdDecidesAlone) {
    for (const AlertId& variant : variantsOf(noId)) {
        EXPECT_TRUE(withId(noId, "M-1") == withId(variant, "M-1"));
        EXPECT_FALSE(withId(noId, "M-1") == withId(variant, "M-2"));
        EXPECT_FALSE(withId(noId, "M-1") == variant || variant == withId(noId, "M-1"));
    }
}

TEST(AlertIdTest, AMissionIdMayComeLateButNotGo) {
    for (const AlertId& variant : variantsOf(noId)) {
        EXPECT_EQ(isSameAlert(noId, withId(variant, "M-1")), noId == variant);
        EXPECT_FALSE(isSameAlert(withId(variant, "M-1"), noId));
    }
    AlertId endless = noId;
    endless.deadline.reset();
    EXPECT_FALSE(isSameAlert(endless, withId(endless, "M-1"))) << "it may be the next alert";
}

TEST(AlertIdTest, OnlyAStateThatWaitsHasOne) {
    LiveState state = LiveState::initial();
    state.missionId = "";
    state.missionStart = noId.start;
    state.approvalDeadline = noId.deadline;
    EXPECT_FALSE(alertId(state));
    state.phase = Phase::awaitingApproval;
    EXPECT_EQ(alertId(state)->cameraId, "");
    state.visitor = Visitor{{}, "Unknown person", 0.9, "front", true, {}};
    EXPECT_EQ(alertId(state), noId) << "an empty mission id is none";
    state.missionId = "M-1";
    EXPECT_EQ(alertId(state)->missionId, "M-1");
}

} // namespace velmora
