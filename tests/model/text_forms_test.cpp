#include "model/date.h"
#include "model/uuid.h"
#include "model/whole.h"

#include <gtest/gtest.h>

#include <limits>

namespace velmora {

TEST(TextForms, DatesAreReadInTheOneFormAndOnlyWhenTheyExist) {
    const auto seconds = [](std::string_view text) {
        const auto date = dateFromText(text);
        return date ? std::optional(secondsSince1970(*date)) : std::nullopt;
    };
    EXPECT_EQ(seconds("2025-06-01T14:03:12Z"), 1748786592);
    EXPECT_EQ(seconds("1969-12-31T23:59:59Z"), -1);
    EXPECT_EQ(seconds("2024-02-29T00:00:00Z"), 1709164800);
    EXPECT_EQ(seconds("2000-02-29T23:59:59Z"), 951868799);
    EXPECT_EQ(seconds("0000-01-01T00:00:00Z"), -62167219200);
    EXPECT_EQ(seconds("9999-12-31T23:59:59Z"), 253402300799);
    for (const char* wrong : {"2025-13-01T00:00:00Z",        "2025-00-01T00:00:00Z",
                              "2025-02-29T00:00:00Z",        "1900-02-29T00:00:00Z",
                              "2025-04-31T00:00:00Z",        "2025-06-00T00:00:00Z",
                              "2025-06-01T24:00:00Z",        "2025-06-01T14:60:00Z",
                              "2025-06-01T14:03:61Z",        "2025-06-01T14:03:60Z",
                              "2025-06-01T14:03:12z",        "2025-06-01t14:03:12Z",
                              "2025-06-01T14:03:12.5Z",      "2025-06-01T14:03:12",
                              "2025-06-01 14:03:12Z",        "2025-06-01T14:03:12+00:00",
                              "2025-6-1T14:03:12Z",          "2025-06-01T14:03Z",
                              " 2025-06-01T14:03:12Z",       "2025-06-01T14:03:12Z ",
                              "+025-06-01T14:03:12Z",        "-001-06-01T14:03:12Z",
                              "12025-06-01T14:03:12Z",       "20250601T140312Z",
                              "2025-06-01T14:03:1\xD9\xA2Z", ""})
        EXPECT_FALSE(seconds(wrong)) << wrong;
}

TEST(TextForms, DatesAreWrittenWithTheFractionDropped) {
    EXPECT_EQ(dateText(dateFromSeconds(1748786592.999)), "2025-06-01T14:03:12Z");
    EXPECT_EQ(dateText(dateFromSeconds(-0.5)), "1969-12-31T23:59:59Z");
    EXPECT_EQ(dateText(dateFromSeconds(-62167219200)), "0000-01-01T00:00:00Z");
    EXPECT_EQ(dateText(dateFromSeconds(253402300800)), std::nullopt);
    EXPECT_EQ(dateText(dateFromSeconds(1e300)), std::nullopt);
    EXPECT_EQ(dateText(dateFromSeconds(std::numeric_limits<double>::quiet_NaN())), std::nullopt);
}

TEST(TextForms, UuidsAreReadInEitherCaseAndWrittenInUpperCase) {
    const std::string upper = "01234567-89AB-CDEF-0123-456789ABCDEF";
    EXPECT_EQ(Uuid::fromText(upper).value().text(), upper);
    EXPECT_EQ(Uuid::fromText("01234567-89ab-cdef-0123-456789abCDEF"), Uuid::fromText(upper));
    for (const char* wrong :
         {"", "01234567-89AB-CDEF-0123-456789ABCDE", "01234567-89AB-CDEF-0123-456789ABCDEF0",
          "0123456789AB-CDEF-0123-456789ABCDEF0-", "01234567+89AB-CDEF-0123-456789ABCDEF",
          "{1234567-89AB-CDEF-0123-456789ABCDEF", "0123456--89AB-CDEF-0123-456789ABCDEF",
          "G1234567-89AB-CDEF-0123-456789ABCDEF"})
        EXPECT_FALSE(Uuid::fromText(wrong)) << wrong;
}

TEST(TextForms, ARandomUuidIsMarkedAsOneWhateverItsBits) {
    EXPECT_EQ(Uuid::fromRandomBits(0, 0).text(), "00000000-0000-4000-8000-000000000000");
    EXPECT_EQ(Uuid::fromRandomBits(~0ull, ~0ull).text(), "FFFFFFFF-FFFF-4FFF-BFFF-FFFFFFFFFFFF");
    EXPECT_EQ(Uuid::fromRandomBits(0x0123456789ABCDEF, 0x0123456789ABCDEF).text(),
              "01234567-89AB-4DEF-8123-456789ABCDEF");
}

TEST(TextForms, WholeNumbersAreCutTowardZero) {
    EXPECT_EQ(whole(29.9), 29);
    EXPECT_EQ(whole(-29.9), -29);
    EXPECT_EQ(whole(-9223372036854775808.0), std::numeric_limits<std::int64_t>::min());
    for (const double misfit : {9223372036854775808.0, -9223372036854777856.0, 1e308 * 10,
                                std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_FALSE(fitsWhole(misfit));
        EXPECT_EQ(whole(misfit), 0);
    }
}

} // namespace velmora
