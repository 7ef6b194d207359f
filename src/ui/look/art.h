#pragma once

#include <QDir>
#include <QImage>

/// Named pictures: the plan of the grounds, camera views, the drone.
namespace velmora::Art {

/// Where the owner's own pictures are looked for, before the program's. Called once at start-up.
void setDirectory(const QDir& directory);

/// The picture, or null when there is none. A name is letters, digits, dots, dashes and underscores and does
/// not start with a dot: it may come from a server and must not lead out of the directory. Pictures above 64
/// megapixels are not loaded. Read anew each time: who shows a picture keeps it at the size shown.
QImage find(const QString& name);

} // namespace velmora::Art
