#pragma once

#include <QDir>
#include <QImage>
#include <QPointF>
#include <QStringList>

#include <optional>

/// Named pictures: the plan of the grounds, camera views, the drone.
namespace velmora::Art {

/// Sets the directory of the owner's pictures, which is searched before the built-in ones. Call once at
/// start-up.
void setDirectory(const QDir& directory);

/// The picture; null if there is none. A name may come from a server, so it must not lead out of the
/// directory: only letters, digits, dots, dashes and underscores are accepted, and no dot at the start.
/// Pictures above 64 megapixels are not loaded. Not cached; callers keep a scaled copy.
QImage find(const QString& name);

/// Begins to decode these pictures, in this order, in a thread. The next find() of each takes the result.
void findAhead(const QStringList& names);
/// Drops what findAhead() found and nobody took.
void dropUnused();

/// Where the visitor is in a built-in camera picture, as shares of its width and height; nullopt for any
/// other picture.
std::optional<QPointF> focusOf(const QString& name);

} // namespace velmora::Art
