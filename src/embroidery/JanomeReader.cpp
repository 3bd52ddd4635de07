#include "embroidery/JanomeReader.h"

#include "embroidery/EmbPattern.h"
#include "embroidery/EmbThreadJanome.h"
#include "embroidery/IOException.h"

namespace Embroidery {

namespace {

constexpr char ControlRecord = '\x80';

} // namespace

void JanomeReader::addChartThread(qint64 index)
{
    const QList<QSharedPointer<EmbThread>> chart = EmbThreadJanome::getThreadSet();
    pattern().addThread(chart.at(static_cast<int>(index % chart.size())));
}

void JanomeReader::readStitches()
{
    EmbPattern &design = pattern();
    design.reserve(static_cast<int>(size() / 2) + 1);
    char b[2];
    while (!atEnd()) {
        if (readFully(b, 2) != 2)
            throw IOException(QStringLiteral("Unexpected end of file."));
        if (b[0] != ControlRecord) {
            design.stitch(signed8(b[0]), -signed8(b[1]));
            continue;
        }
        const int code = b[1] & 0xFF;
        // Unlike a stitch that is cut off, an operand that is missing is no failure.
        if (readFully(b, 2) != 2 || !control(code, signed8(b[0]), -signed8(b[1])))
            break;
    }
    design.end();
}

} // namespace Embroidery
