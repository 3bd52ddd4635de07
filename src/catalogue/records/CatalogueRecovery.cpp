#include "catalogue/records/CatalogueRecovery.h"

#include "base/Error.h"
#include "catalogue/records/Project.h"
#include "properties/xml/PropertyXMLReader.h"
#include "properties/xml/XmlTools.h"

#include <QDomDocument>
#include <QSet>
#include <QXmlStreamReader>

namespace {

QString startTag(const QString &name)
{
    return QLatin1Char('<') + name + QLatin1Char('>');
}

QString endTag(const QString &name)
{
    return QStringLiteral("</") + name + QLatin1Char('>');
}

/** The element that @p xml is; null when it is malformed. */
QDomElement elementOf(const QString &xml, QDomDocument &document)
{
    QXmlStreamReader reader(xml);
    XmlTools::prepareReader(reader);
    if (!reader.readNextStartElement())
        return {};
    const QDomElement element = XmlTools::createElement(document, reader);
    document.appendChild(element);
    XmlTools::readChildren(reader, document, element, XmlTools::DropBlankText);
    return reader.hasError() ? QDomElement() : element;
}

} // namespace

CatalogueRecovery::CatalogueRecovery(Project *project, const PropertyFactory *factory)
    : m_project(project), m_factory(factory)
{
}

int CatalogueRecovery::recover(const QByteArray &bytes)
{
    // A byte that belongs to no character becomes a sign for that, and costs no more.
    m_text = QString::fromUtf8(bytes);
    QList<QSharedPointer<IFile>> records;
    QSet<QString> paths;
    QStringList tags = stringsIn(m_project->allTagsProp()->propertyName());
    const QStringList elements = wholeElements(QStringLiteral("file"), 0, m_text.size());
    for (const QString &xml : elements) {
        const QSharedPointer<File> record = recordOf(xml);
        if (!record || record->absoluteFilePath().isEmpty() ||
            paths.contains(record->absoluteFilePath()))
            continue;
        paths.insert(record->absoluteFilePath());
        records.append(record);
        tags += record->tags();
    }
    tags.removeDuplicates();

    const QStringList folders = stringsIn(m_project->smartFoldersProp()->propertyName());
    m_project->clear();
    m_project->smartFoldersProp()->setValueWithoutUndoAndAnnounceChange(folders);
    m_project->setFiles(records);
    m_project->setAllTags(tags);
    return records.size();
}

/** The elements of this name, from tag to tag, that none of their like begins in. */
QStringList CatalogueRecovery::wholeElements(const QString &name, int from, int to) const
{
    const QString start = startTag(name);
    const QString end = endTag(name);
    QStringList elements;
    int next = m_text.indexOf(start, from);
    while (next >= 0 && next < to) {
        const int first = next;
        next = m_text.indexOf(start, first + start.size());
        const int last = m_text.indexOf(end, first);
        const int limit = next < 0 ? to : qMin(next, to);
        if (last >= 0 && last < limit)
            elements.append(m_text.mid(first, last + end.size() - first));
    }
    return elements;
}

/** The whole strings of the list of this name, which may be cut off itself. */
QStringList CatalogueRecovery::stringsIn(const QString &name) const
{
    const int from = m_text.indexOf(startTag(name));
    if (from < 0)
        return {};
    int to = m_text.indexOf(endTag(name), from);
    const int records = m_text.indexOf(startTag(m_project->filesProp()->propertyName()), from);
    if (to < 0 || (records >= 0 && records < to))
        to = records < 0 ? m_text.size() : records;
    QStringList strings;
    const QStringList elements = wholeElements(QStringLiteral("string"), from, to);
    for (const QString &xml : elements) {
        QDomDocument document;
        const QDomElement element = elementOf(xml, document);
        if (!element.isNull())
            strings.append(element.text());
    }
    return strings;
}

QSharedPointer<File> CatalogueRecovery::recordOf(const QString &xml) const
{
    QDomDocument document;
    const QDomElement element = elementOf(xml, document);
    if (element.isNull())
        return {};
    try {
        auto record = QSharedPointer<File>::create(m_project);
        PropertyXMLReader(m_project, m_factory)
            .readFromXML(record.data(), element, QStringLiteral("/"));
        return record;
    } catch (const Error &) {
        return {};
    }
}
