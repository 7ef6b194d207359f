#include "model/visit_patterns.h"

#include "model/mission_evidence.h"
#include "model/truncated.h"

#include <algorithm>
#include <cmath>
#include <ctime>

namespace velmora {

namespace {

MedianTime medianOf(std::vector<double> times) {
    if (times.empty())
        return {};
    const std::size_t half = times.size() / 2;
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(half);
    std::ranges::nth_element(times, middle);
    const double below = times.size() % 2 == 1 ? *middle : *std::max_element(times.begin(), middle);
    return {below / 2 + *middle / 2, static_cast<int>(times.size())};
}

/// Leaves out times that only a clock set back can explain.
void addTime(std::vector<double>& times, Seconds time) {
    if (time.count() >= 0)
        times.push_back(time.count());
}

} // namespace

std::optional<WeekHour> weekHourOf(Date date) {
    constexpr int saturday = 6;
    const double seconds = std::floor(secondsSince1970(date));
    const std::time_t instant = truncated(seconds);
    std::tm calendar{};
    if (!fitsInt64(seconds) || !localtime_r(&instant, &calendar))
        return std::nullopt;
    return WeekHour{(calendar.tm_wday + saturday) % daysInWeek, calendar.tm_hour};
}

DayPart dayPartOf(int hour) {
    const auto after = std::ranges::upper_bound(dayPartHours, hour);
    return static_cast<DayPart>(after - dayPartHours.begin() - 1);
}

void VisitPatterns::add(const MissionRecord& record) {
    ++visits_;
    ++outcomes_[static_cast<std::size_t>(record.outcome)];
    Camera& camera = cameras_[record.cameraName];
    ++camera.visits;
    if (const auto at = weekHourOf(record.start)) {
        const auto weekday = index(at->weekday), part = static_cast<std::size_t>(dayPartOf(at->hour));
        ++hours_[weekday][index(at->hour)];
        ++groups_[weekday][part];
        ++camera.groups[weekday][part];
    }
    first_ = std::min(first_.value_or(record.start), record.start);
    last_ = std::max(last_.value_or(record.start), record.start);
    addTimes(record);
    if (const auto inside = leastDistanceInside(record, bounds_))
        leastInside_ = std::min(leastInside_.value_or(*inside), *inside);
}

void VisitPatterns::addTimes(const MissionRecord& record) {
    if (const auto answer = answerOnRecord(record))
        addTime(toAnswer_, answer->time - record.start);
    if (!flew(record.outcome))
        return;
    for (const ResponseMoment& moment : responseTimeline(record))
        if (moment.step == ResponseStep::onStation)
            addTime(toStation_, moment.time - record.start);
}

int VisitPatterns::flown() const {
    int sum = 0;
    for (const auto& [outcome, text] : rawValuesOf<Outcome>)
        sum += flew(outcome) ? visitsWith(outcome) : 0;
    return sum;
}

std::vector<CameraCount> VisitPatterns::byCamera() const {
    std::vector<CameraCount> counts;
    for (const auto& [name, camera] : cameras_)
        counts.push_back({name, camera.visits});
    std::ranges::stable_sort(counts, std::greater(), &CameraCount::visits);
    return counts;
}

MedianTime VisitPatterns::toAnswer() const {
    return medianOf(toAnswer_);
}

MedianTime VisitPatterns::toStation() const {
    return medianOf(toStation_);
}

std::optional<VisitGroup> VisitPatterns::group() const {
    VisitGroup largest;
    bool tied = false;
    for (int weekday = 0; weekday < daysInWeek; ++weekday)
        for (int part = 0; part < dayParts; ++part) {
            const int here = groups_[index(weekday)][index(part)];
            tied = here == largest.visits || (tied && here < largest.visits);
            if (here > largest.visits)
                largest = {weekday, static_cast<DayPart>(part), here};
        }
    if (visits_ < fewest || tied || 3 * largest.visits < visits_)
        return std::nullopt;
    return largest;
}

std::optional<std::string> VisitPatterns::mostlyCamera() const {
    const auto counts = byCamera();
    const bool tied = counts.size() > 1 && counts[0].visits == counts[1].visits;
    if (counts.empty() || tied || 2 * counts[0].visits < visits_)
        return std::nullopt;
    return counts[0].name;
}

int VisitPatterns::visitsOf(const VisitGroup& group, const std::string& camera) const {
    const auto found = cameras_.find(camera);
    return found == cameras_.end()
               ? 0
               : found->second.groups[index(group.weekday)][static_cast<std::size_t>(group.part)];
}

} // namespace velmora
