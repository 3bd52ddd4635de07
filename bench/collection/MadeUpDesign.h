#pragma once

#include "embroidery/EmbPattern.h"
#include <QSharedPointer>

class Chance;

/** Designs that nobody has digitised, as varied as a collector's: the shapes that chance sews. */
namespace MadeUpDesign {

using Pattern = QSharedPointer<Embroidery::EmbPattern>;

/** How designs of one family differ: turned by quarters, mirrored, in other colours. */
constexpr int FamilySize = 8;

/** From 500 to 60,000 stitches, 8,000 on average; of the size that so many stitches fill. */
Pattern sew(Chance &chance);

/** The @p member-th of the family that @p design is the first of. */
Pattern relative(const Embroidery::EmbPattern &design, int member);

} // namespace MadeUpDesign
