#include "writers/DesignWriters.h"

#include "writers/FormatWriters.h"

#include <QHash>

#include <stdexcept>

namespace DesignWriters {

namespace {

using Writer = QByteArray (*)(const Embroidery::EmbPattern &);

const QHash<QString, Writer> &writers()
{
    static const QHash<QString, Writer> table = {
        {QStringLiteral("dst"), writeDst}, {QStringLiteral("exp"), writeExp},
        {QStringLiteral("hus"), writeHus}, {QStringLiteral("jef"), writeJef},
        {QStringLiteral("pec"), writePec}, {QStringLiteral("pes"), writePes},
        {QStringLiteral("sew"), writeSew}, {QStringLiteral("xxx"), writeXxx},
    };
    return table;
}

} // namespace

QStringList formats()
{
    QStringList names = writers().keys();
    names.sort();
    return names;
}

QByteArray write(const QString &format, const Embroidery::EmbPattern &pattern)
{
    const Writer writer = writers().value(format);
    if (!writer)
        throw std::invalid_argument("no writer for the format " + format.toStdString());
    return writer(pattern);
}

} // namespace DesignWriters
