#include "model/notice_texts.h"

#include "model/truncated.h"

#include <algorithm>

namespace velmora {

namespace {

/// The text of a kind of notice: the parts before and after the inserted value, if it has one.
struct Form {
    NoticeKind kind;
    Notice::Level level;
    std::string_view before;
    std::string_view after = {};
    bool inserts = false;
};

constexpr auto info = Notice::Level::info, good = Notice::Level::good, caution = Notice::Level::caution;

constexpr Form forms[] = {
    {NoticeKind::detection, caution, "", " camera: someone you don't know", true},
    {NoticeKind::approved, good, "You approved the launch"},
    {NoticeKind::airborne, info, "Airborne at ", " m — heading to the visitor", true},
    {NoticeKind::following, good, "Following at ", " m", true},
    {NoticeKind::handedOver, good, "Following — handed over to DJI tracking"},
    {NoticeKind::atBoundary, caution, "At your boundary — holding inside the ", " m buffer", true},
    {NoticeKind::gust, info, "Gust of ", " km/h — recovered and back on station", true},
    {NoticeKind::crossedBoundary, info, "Visitor has crossed your boundary"},
    {NoticeKind::leftGrounds, good, "Visitor has left your grounds"},
    {NoticeKind::holding, info, "Holding position at ", " m", true},
    {NoticeKind::followingAgain, info, "Following again"},
    {NoticeKind::comingHome, info, "Coming home"},
    {NoticeKind::comingHomeAsked, info, "Coming home — you asked"},
    {NoticeKind::batteryLow, caution, "Battery below ", "% — coming home", true},
    {NoticeKind::landingAsked, caution, "Landing now where it is — you asked"},
    {NoticeKind::overPad, info, "Over the pad — landing"},
    {NoticeKind::landed, good, "Landed and docked"},
    {NoticeKind::landedAway, caution, "Landed away from the pad — please collect it"},
    {NoticeKind::armed, good, "System armed"},
    {NoticeKind::disarmed, caution, "System disarmed — detections will be logged only"},
};

const Form& formOf(NoticeKind kind) {
    return *std::ranges::find(forms, kind, &Form::kind);
}

bool fits(const Form& form, std::string_view text) {
    return form.inserts ? text.size() >= form.before.size() + form.after.size() &&
                              text.starts_with(form.before) && text.ends_with(form.after)
                        : text == form.before;
}

} // namespace

std::string noticeText(NoticeKind kind, std::string_view inserted) {
    const Form& form = formOf(kind);
    return std::string(form.before).append(inserted).append(form.after);
}

std::string noticeText(NoticeKind kind, double inserted) {
    return noticeText(kind, std::to_string(truncated(inserted)));
}

Notice::Level noticeLevel(NoticeKind kind) {
    return formOf(kind).level;
}

std::optional<NoticeReading> readNotice(std::string_view text) {
    const Form* form =
        std::ranges::find_if(forms, [text](const Form& candidate) { return fits(candidate, text); });
    if (form == std::end(forms))
        return std::nullopt;
    if (!form->inserts)
        return NoticeReading{form->kind, std::nullopt};
    text.remove_prefix(form->before.size());
    text.remove_suffix(form->after.size());
    return NoticeReading{form->kind, text};
}

} // namespace velmora
