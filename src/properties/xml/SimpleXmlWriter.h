#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMap>
#include <QPair>
#include <QString>
#include <QVariant>
#include <QXmlStreamWriter>

/** Writes reports that have no property tree behind them, as UTF-8 indented by tabs. */
class SimpleXmlWriter : public QXmlStreamWriter
{
public:
    using Attributes = QList<QPair<QString, QString>>;

    /** Begins the document and its root element; @p output must outlive the writer. */
    SimpleXmlWriter(QByteArray *output, const QString &rootElement,
                    const Attributes &attributes = {});

    /** Closes. */
    ~SimpleXmlWriter();

    void startElement(const QString &name, const Attributes &attributes = {});
    void endElement();

    void addElement(const QString &name, const QString &text, const Attributes &attributes = {});
    void addElement(const QString &name, const char *text);

    /** By the type of the value; a value that can't be written leaves comments. */
    void addElement(const QString &name, const QVariant &value);

    void addElementList(const QMap<QString, QVariant> &values);
    void addElementList(const QHash<QString, QString> &values);

    /** Adds attributes to the element that was started last. */
    void addTags(const Attributes &attributes);

    /** Ends all open elements and the document; further calls change nothing. */
    void close();

private:
    bool m_closed = false;
};
