#include "online/FeedbackReport.h"

#include "app/frame/GFileDialog.h"
#include "online/services/SystemInquiry.h"
#include "properties/xml/SimpleXmlWriter.h"

#include <QCoreApplication>

namespace {

void add(SimpleXmlWriter &writer, const char *name, const QString &text)
{
    writer.addElement(QString::fromLatin1(name), text);
}

QString typeName(FeedbackReport::Type type)
{
    switch (type) {
    case FeedbackReport::Feedback:
        return QStringLiteral("feedback");
    case FeedbackReport::Question:
        return QStringLiteral("question");
    case FeedbackReport::Feature:
        return QStringLiteral("feature");
    case FeedbackReport::Bug:
        return QStringLiteral("bug");
    case FeedbackReport::Crash:
        return QStringLiteral("crash");
    }
    return QString();
}

void addCrash(SimpleXmlWriter &writer, const FeedbackReport &report)
{
    add(writer, "description",
        report.text + QStringLiteral("\n\nOverlayIcons: ") +
            GFileDialog::listOfRegisteredOverlayIcons().join(QStringLiteral(", ")));
    for (const QString &log : report.crashLogs)
        add(writer, "log", log);
}

void addBody(SimpleXmlWriter &writer, const FeedbackReport &report)
{
    const bool question = report.type == FeedbackReport::Question;
    writer.startElement(question ? QStringLiteral("support") : typeName(report.type));
    switch (report.type) {
    case FeedbackReport::Feedback:
        add(writer, "message", report.text);
        break;
    case FeedbackReport::Question:
        add(writer, "question", report.text);
        add(writer, "topic", report.topic);
        break;
    case FeedbackReport::Feature:
        add(writer, "request", report.text);
        add(writer, "urgency", report.urgency);
        add(writer, "topic", report.topic);
        break;
    case FeedbackReport::Bug:
        add(writer, "expected", report.text);
        add(writer, "reproduce", report.reproduce);
        add(writer, "critical", report.critical ? QStringLiteral("yes") : QStringLiteral("no"));
        add(writer, "topic", report.topic);
        break;
    case FeedbackReport::Crash:
        addCrash(writer, report);
        break;
    }
    writer.endElement();
}

} // namespace

QByteArray FeedbackReport::toXml() const
{
    QByteArray document;
    SimpleXmlWriter writer(&document, QStringLiteral("feedback"),
                           {{QStringLiteral("version"), QStringLiteral("1.0")}});
    add(writer, "os", theSystemInquiry()->osString());
    add(writer, "mail", mail);
    add(writer, "appName", QCoreApplication::applicationName());
    add(writer, "appVersion", QCoreApplication::applicationVersion());
    for (auto entry = additional.begin(); entry != additional.end(); ++entry) {
        writer.startElement(QStringLiteral("additional"));
        add(writer, "key", entry.key());
        writer.addElement(QStringLiteral("value"), entry.value());
        writer.endElement();
    }
    add(writer, "type", typeName(type));
    addBody(writer, *this);
    writer.close();
    return document;
}
