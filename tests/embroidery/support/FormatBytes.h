#pragma once

#include <QByteArray>
#include <QVector>

namespace TestSupport {

/** The parts of a PEC block that readers look at. */
struct PecParts
{
    QByteArray label = "LA:Rose         ";
    QByteArray colors = QByteArray(1, '\x05');
    int width = 0;
    int height = 0;
    QByteArray stitches = QByteArray("\xFF\0", 2);
    /** The stored length of the stitch block; -1 for the one that fits. */
    int length = -1;
    QByteArray graphics;
};

QByteArray le16(int value);
QByteArray le32(int value);

/** A PEC block, as it stands in ".pec" and ".pes" files. */
QByteArray pecBlock(const PecParts &parts);

/** A whole ".pec" file. */
QByteArray pecFile(const PecParts &parts);

/** A ".xxx" file of the colours (0xRRGGBB) and the stitch records. */
QByteArray xxxFile(const QVector<unsigned int> &colors, const QByteArray &records);

/** A ".jef" file of the chart indices and the stitch records. */
QByteArray jefFile(const QVector<int> &colors, const QByteArray &records);

/** A ".sew" file of the chart indices and the stitch records. */
QByteArray sewFile(const QVector<int> &colors, const QByteArray &records);

/** A ".hus" file of the chart indices and the three streams, already compressed. */
QByteArray husFile(int stitchCount, const QVector<int> &colors, const QByteArray &commands,
                   const QByteArray &x, const QByteArray &y);

} // namespace TestSupport
