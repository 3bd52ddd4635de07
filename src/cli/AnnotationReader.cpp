#include "cli/AnnotationReader.h"

#include "base/Error.h"
#include "cli/Csv.h"
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

constexpr int HashSize = 16;

QStringList cleanTags(const QStringList &tags)
{
    QStringList clean;
    for (const QString &tag : tags)
        clean.append(tag.trimmed());
    clean.removeAll(QString());
    clean.removeDuplicates();
    return clean;
}

} // namespace

QList<Annotation> AnnotationReader::read(const QByteArray &bytes)
{
    QString text = QString::fromUtf8(bytes);
    if (text.contains(QChar(QChar::ReplacementCharacter)) && text.toUtf8() != bytes)
        throw Error(tr("The text is not UTF-8."));
    if (text.startsWith(QChar(QChar::ByteOrderMark)))
        text.remove(0, 1);
    const QByteArray trimmed = text.toUtf8().trimmed();
    if (trimmed.startsWith('{') || trimmed.startsWith('['))
        readJson(trimmed);
    else
        readCsv(text);
    return m_annotations;
}

void AnnotationReader::readJson(const QByteArray &bytes)
{
    const QJsonDocument whole = QJsonDocument::fromJson(bytes);
    if (whole.isArray()) {
        const QJsonArray entries = whole.array();
        for (const QJsonValue &entry : entries) {
            ++m_entry;
            if (!entry.isObject())
                fail(tr("it is no JSON object"));
            addObject(entry.toObject());
        }
        return;
    }
    if (whole.isObject()) {
        ++m_entry;
        addObject(whole.object());
        return;
    }
    const QList<QByteArray> lines = bytes.split('\n');
    for (const QByteArray &line : lines) {
        if (line.trimmed().isEmpty())
            continue;
        ++m_entry;
        const QJsonDocument entry = QJsonDocument::fromJson(line);
        if (!entry.isObject())
            fail(tr("it is no JSON object"));
        addObject(entry.object());
    }
}

void AnnotationReader::addObject(const QJsonObject &object)
{
    Annotation annotation;
    annotation.name = object.value(QLatin1String("name")).toString();
    annotation.notes = object.value(QLatin1String("notes")).toString();
    annotation.favorite = object.value(QLatin1String("favorite")).toBool();
    expectType(object, "notes", QJsonValue::String);
    expectType(object, "favorite", QJsonValue::Bool);
    expectType(object, "tags", QJsonValue::Array);
    const QJsonArray tags = object.value(QLatin1String("tags")).toArray();
    for (const QJsonValue &tag : tags) {
        if (!tag.isString())
            fail(tr("its '%1' is none").arg(QStringLiteral("tags")));
        annotation.tags.append(tag.toString());
    }
    add(annotation, object.value(QLatin1String("md5")).toString(),
        object.value(QLatin1String("file")).toString());
}

void AnnotationReader::expectType(const QJsonObject &object, const char *name,
                                  QJsonValue::Type type) const
{
    const QJsonValue value = object.value(QLatin1String(name));
    if (!value.isUndefined() && value.type() != type)
        fail(tr("its '%1' is none").arg(QLatin1String(name)));
}

void AnnotationReader::readCsv(const QString &text)
{
    QList<QStringList> records = Csv::parse(text);
    if (records.isEmpty())
        return;
    const QStringList columns = records.takeFirst();
    if (!columns.contains(QLatin1String("md5")) && !columns.contains(QLatin1String("file")))
        throw Error(tr("The first line names neither a column 'md5' nor a column 'file'."));
    for (const QStringList &record : qAsConst(records)) {
        ++m_entry;
        if (record.size() != columns.size())
            fail(tr("it has another number of fields than the first line"));
        const auto field = [&](const char *name) {
            return record.value(columns.indexOf(QLatin1String(name)));
        };
        Annotation annotation;
        annotation.name = field("name");
        annotation.notes = field("notes");
        const QString favorite = field("favorite");
        annotation.favorite = favorite == QLatin1String("true");
        if (!annotation.favorite && !favorite.isEmpty() && favorite != QLatin1String("false"))
            fail(tr("its '%1' is none").arg(QStringLiteral("favorite")));
        annotation.tags = Csv::parse(field("tags"), Csv::TagSeparator).value(0);
        add(annotation, field("md5"), field("file"));
    }
}

void AnnotationReader::add(Annotation annotation, const QString &hash, const QString &path)
{
    annotation.contentHash = QByteArray::fromHex(hash.toLatin1());
    if (!hash.isEmpty() && annotation.contentHash.size() != HashSize)
        fail(tr("its '%1' is none").arg(QStringLiteral("md5")));
    if (hash.isEmpty() && path.isEmpty())
        fail(tr("it has neither md5 nor file"));
    annotation.path = path.isEmpty() ? path : QDir::cleanPath(path);
    annotation.tags = cleanTags(annotation.tags);
    m_annotations.append(annotation);
}

void AnnotationReader::fail(const QString &reason) const
{
    throw Error(tr("Entry %1 is wrong: %2.").arg(m_entry).arg(reason));
}
