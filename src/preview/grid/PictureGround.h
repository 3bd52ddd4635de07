#pragma once

#include <QColor>

class IFile;

/** The ground that a design's picture is shown on. */
namespace PictureGround {

/**
 * White, and in a dark window as dark as a card is there, but for a design with threads that
 * would not be seen on that.
 */
QColor of(const IFile &file);

} // namespace PictureGround
