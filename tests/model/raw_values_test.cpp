#include "model/live_state.h"

#include <gmock/gmock.h>

namespace velmora {

using testing::ElementsAre;

namespace {

template <class Enum>
std::vector<std::string_view> rawValues() {
    std::vector<std::string_view> texts;
    for (const auto& [value, text] : rawValuesOf<Enum>) {
        EXPECT_EQ(static_cast<std::size_t>(value), texts.size()) << text << " is not in declaration order";
        EXPECT_EQ(fromRawValue<Enum>(rawValue(value)), value);
        texts.push_back(text);
    }
    return texts;
}

std::optional<double> secondsOf(std::string_view text) {
    const auto date = dateFromText(text);
    return date ? std::optional(secondsSince1970(*date)) : std::nullopt;
}

} // namespace

TEST(RawValues, EnumerationsUseTheTextsOfFilesAndNetwork) {
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
    for (const auto& [phase, text] : rawValuesOf<Phase>)
        EXPECT_EQ(airborne(phase), text != "docked" && text != "awaiting_approval") << text;
    for (const auto& [outcome, text] : rawValuesOf<Outcome>)
        EXPECT_EQ(flew(outcome), outcome < Outcome::ignored) << text;
}

TEST(RawValues, DatesHaveOneFormatAndMustExist) {
    EXPECT_EQ(secondsOf("2025-06-01T14:03:12Z"), 1748786592);
    EXPECT_EQ(secondsOf("1969-12-31T23:59:59Z"), -1);
    EXPECT_EQ(secondsOf("2024-02-29T00:00:00Z"), 1709164800);
    EXPECT_EQ(secondsOf("0000-01-01T00:00:00Z"), -62167219200);
    EXPECT_EQ(secondsOf("9999-12-31T23:59:59Z"), 253402300799);
    for (const char* wrong :
         {"2025-13-01T00:00:00Z", "2025-00-01T00:00:00Z", "2025-02-29T00:00:00Z", "1900-02-29T00:00:00Z",
          "2025-06-00T00:00:00Z", "2025-06-01T24:00:00Z", "2025-06-01T14:60:00Z", "2025-06-01T14:03:61Z",
          "2025-06-01T14:03:12z", "2025-06-01t14:03:12Z", "2025-06-01T14:03:12.5Z", "2025-06-01T14:03:12",
          "2025-06-01T14:03:12+00:00", "2025-06-01T14:03Z", " 2025-06-01T14:03:12Z", "-001-06-01T14:03:12Z",
          "12025-06-01T14:03:12Z", "20250601T140312Z", ""})
        EXPECT_FALSE(secondsOf(wrong)) << wrong;
    EXPECT_EQ(dateText(dateFromSeconds(1748786592.999)), "2025-06-01T14:03:12Z");
    EXPECT_EQ(dateText(dateFromSeconds(-0.5)), "1969-12-31T23:59:59Z");
}

TEST(RawValues, UuidsAreReadInEitherCaseAndWrittenInUpperCase) {
    const std::string upper = "01234567-89AB-CDEF-0123-456789ABCDEF";
    EXPECT_EQ(Uuid::fromText(upper).value().text(), upper);
    EXPECT_EQ(Uuid::fromText("01234567-89ab-cdef-0123-456789abCDEF"), Uuid::fromText(upper));
    for (const char* wrong :
         {"", "01234567-89AB-CDEF-0123-456789ABCDE", "0123456789AB-CDEF-0123-456789ABCDEF0-",
          "01234567-89AB-CDEF-0123-456789ABCDEF0", "G1234567-89AB-CDEF-0123-456789ABCDEF"})
        EXPECT_FALSE(Uuid::fromText(wrong)) << wrong;
    EXPECT_EQ(Uuid::fromRandomBits(0, 0).text(), "00000000-0000-4000-8000-000000000000");
    EXPECT_EQ(Uuid::fromRandomBits(~0ull, ~0ull).text(), "FFFFFFFF-FFFF-4FFF-BFFF-FFFFFFFFFFFF");
    EXPECT_EQ(Uuid::fromRandomBits(0x0123'4567'89AB'CDEF, 0xFEDC'BA98'7654'3210).text(),
              "01234567-89AB-4DEF-BEDC-BA9876543210");
}

} // namespace velmora
