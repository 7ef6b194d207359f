#include "model/date.h"

#include <array>
#include <cstdio>

namespace velmora {

namespace {

using namespace std::chrono;

constexpr std::string_view form = "dddd-dd-ddTdd:dd:ddZ";

bool hasForm(std::string_view text) {
    if (text.size() != form.size())
        return false;
    for (std::size_t i = 0; i < form.size(); ++i) {
        const bool fits = form[i] == 'd' ? text[i] >= '0' && text[i] <= '9' : text[i] == form[i];
        if (!fits)
            return false;
    }
    return true;
}

int number(std::string_view digits) {
    int value = 0;
    for (const char digit : digits)
        value = value * 10 + (digit - '0');
    return value;
}

} // namespace

std::optional<std::string> dateText(Date date) {
    constexpr Date first{sys_days{year{0} / January / 1}};
    constexpr Date afterLast{sys_days{year{10000} / January / 1}};
    if (!(date >= first && date < afterLast))
        return std::nullopt;
    const auto fullSeconds = floor<seconds>(date);
    const auto day = floor<days>(fullSeconds);
    const year_month_day calendar{day};
    const hh_mm_ss clock{fullSeconds - day};
    std::array<char, 80> text{}; // large enough for any values of these types
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ", int(calendar.year()),
                  unsigned(calendar.month()), unsigned(calendar.day()), int(clock.hours().count()),
                  int(clock.minutes().count()), int(clock.seconds().count()));
    return std::string(text.data());
}

int yearOf(Date date) {
    return int(year_month_day{floor<days>(date)}.year());
}

std::optional<Date> dateFromText(std::string_view text) {
    if (!hasForm(text))
        return std::nullopt;
    const auto field = [&](std::size_t at, std::size_t size = 2) { return number(text.substr(at, size)); };
    const year_month_day calendar{year{field(0, 4)}, month{unsigned(field(5))}, day{unsigned(field(8))}};
    const int hour = field(11), minute = field(14), second = field(17);
    if (!calendar.ok() || hour > 23 || minute > 59 || second > 59)
        return std::nullopt;
    return Date{sys_days{calendar} + hours{hour} + minutes{minute} + seconds{second}};
}

} // namespace velmora
