#include "cli/DesignFormat.h"

#include "catalogue/records/IThread.h"
#include "cli/Command.h"
#include "cli/CommandError.h"
#include "cli/Csv.h"
#include "cli/JsonWriter.h"
#include <algorithm>
#include <iterator>

namespace {

struct Column
{
    const char *name;
    QString (*value)(const IFile &file);
};

/** Empty when the extent is not known. */
QString extent(double millimetres)
{
    return millimetres < 0 ? QString() : QString::fromLatin1(JsonWriter::number(millimetres));
}

// The CSV form in its order.
const Column AllColumns[] = {
    {"file", [](const IFile &file) { return file.absoluteFilePath(); }},
    {"name", [](const IFile &file) { return file.name(); }},
    {"md5", [](const IFile &file) { return QString::fromLatin1(file.contentHash().toHex()); }},
    {"file_size", [](const IFile &file) { return QString::number(file.fileSize()); }},
    {"modification_date",
     [](const IFile &file) { return QString::number(file.modificationDate()); }},
    {"stitch_count", [](const IFile &file) { return QString::number(file.stitchCount()); }},
    {"width_mm", [](const IFile &file) { return extent(file.designSize().width()); }},
    {"height_mm", [](const IFile &file) { return extent(file.designSize().height()); }},
    {"thread_count", [](const IFile &file) { return QString::number(file.threads().size()); }},
    {"notes", [](const IFile &file) { return file.notes(); }},
    {"tags", [](const IFile &file) { return Csv::line(file.tags(), Csv::TagSeparator); }},
    {"favorite",
     [](const IFile &file) {
         return file.isFavorite() ? QStringLiteral("true") : QStringLiteral("false");
     }},
};

QString unescaped(QChar c)
{
    if (c == QLatin1Char('n'))
        return QStringLiteral("\n");
    if (c == QLatin1Char('t'))
        return QStringLiteral("\t");
    if (c == QLatin1Char('\\'))
        return c;
    return QLatin1Char('\\') + QString(c);
}

} // namespace

QStringList DesignFormat::columns()
{
    QStringList names;
    for (const Column &column : AllColumns)
        names.append(QLatin1String(column.name));
    return names;
}

QString DesignFormat::value(const IFile &file, const QString &name)
{
    const auto column =
        std::find_if(std::begin(AllColumns), std::end(AllColumns),
                     [&](const Column &each) { return name == QLatin1String(each.name); });
    return column == std::end(AllColumns) ? QString() : column->value(file);
}

DesignFormat::DesignFormat(const QString &text)
{
    QString plain;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isLast = i + 1 == text.size();
        if (c == QLatin1Char('\\') && !isLast) {
            plain += unescaped(text.at(++i));
        } else if (c == QLatin1Char('{') && !isLast && text.at(i + 1) == c) {
            plain += text.at(++i);
        } else if (c == QLatin1Char('{')) {
            m_pieces.append({false, plain});
            plain.clear();
            i = readField(text, i + 1);
        } else {
            plain += c;
        }
    }
    m_pieces.append({false, plain});
}

/** @return where the field's closing brace stands */
int DesignFormat::readField(const QString &text, int start)
{
    const int end = text.indexOf(QLatin1Char('}'), start);
    const QString name = text.mid(start, end < 0 ? -1 : end - start);
    if (end < 0 || !columns().contains(name)) {
        const QString message = tr("Unknown field '{%1}'; there are %2.")
                                    .arg(name, columns().join(QStringLiteral(", ")));
        throw UsageError(withSuggestion(message, name, columns()));
    }
    m_pieces.append({true, name});
    return end;
}

QString DesignFormat::line(const IFile &file) const
{
    QString line;
    for (const Piece &piece : m_pieces)
        line += piece.isField ? value(file, piece.text) : piece.text;
    return line;
}
