#include "ui/screens/visitor_words.h"

#include "language/language.h"
#include "ui/look/words.h"

namespace velmora {

QString visitorCamera(const Visitor& visitor, const Site& site) {
    return findCamera(site, visitor.cameraId) ? Words::tr("%1 camera").arg(cameraName(site, visitor.cameraId))
                                              : cameraName(site, visitor.cameraId);
}

QString visitorPicture(const Visitor& visitor, const Site& site) {
    const CameraInfo* camera = findCamera(site, visitor.cameraId);
    return camera ? toQString(camera->snapshot) : QString();
}

QString certaintyText(const Visitor& visitor) {
    return Words::tr("%1% sure it's no one you know").arg(percent(visitor.confidence));
}

} // namespace velmora
