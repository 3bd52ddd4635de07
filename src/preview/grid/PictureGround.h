#pragma once

#include <QColor>

class IFile;

/** The ground that a design's picture is shown on. */
namespace PictureGround {

/** White, but for a design with threads that would not be seen on that. */
QColor of(const IFile &file);

} // namespace PictureGround
