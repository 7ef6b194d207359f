#include "link/state_guard.h"

#include <gtest/gtest.h>

#include <functional>

namespace velmora {

TEST(StateGuard, WhatWouldStallTheScreensIsRefused) {
    struct Case {
        std::function<void(LiveState&)> change;
        std::string trouble;
    };
    const Case cases[] = {
        {[](LiveState&) {}, ""},
        {[](LiveState& s) { s.notices.resize(1000); }, ""},
        {[](LiveState& s) { s.notices.resize(1001); }, "notices: more than 1000 entries"},
        {[](LiveState& s) { s.drone.trail.resize(10'001); }, "drone.trail: more than 10000 entries"},
        {[](LiveState& s) { s.site.cameras.resize(101); }, "site.cameras: more than 100 entries"},
        {[](LiveState& s) { s.site.cameras[1].name.assign(1001, 'a'); },
         "site.cameras[1].name: longer than 1000 bytes"},
        {[](LiveState& s) { s.visitor.emplace().label.assign(1001, 'a'); },
         "visitor.label: longer than 1000 bytes"},
        {[](LiveState& s) { s.missionId.emplace(1001, 'a'); }, "missionId: longer than 1000 bytes"},
        {[](LiveState& s) { s.site.boundary.clear(); }, "site.boundary: expected at least one point"},
    };
    for (const auto& [change, trouble] : cases) {
        LiveState state = LiveState::initial();
        change(state);
        EXPECT_EQ(troubleIn(state), trouble);
    }
}

TEST(StateGuard, TheVersionFitsOneLine) {
    EXPECT_EQ(versionText("2.1"), "2.1");
    EXPECT_EQ(versionText(" 2.1\t beta "), "2.1 beta");
    EXPECT_EQ(versionText("2\x1b[1m.\xE2\x80\xAE"
                          "1"),
              "2[1m.1")
        << "neither escapes nor reversed text";
    EXPECT_EQ(versionText(QByteArray(5000, 'v')), QString(40, 'v'));
}

} // namespace velmora
