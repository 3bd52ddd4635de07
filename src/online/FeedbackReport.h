#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

/** What the user sends to the maker, in the form that the maker's server reads. */
struct FeedbackReport
{
    enum Type { Feedback, Question, Feature, Bug, Crash };

    Type type = Feedback;
    /** Empty when the user keeps it back. */
    QString mail;
    QMap<QString, QVariant> additional;
    QString topic;
    /** The message, question, wish, expectation or description, by type. */
    QString text;
    /** How to reproduce a bug. */
    QString reproduce;
    /** How much a wished-for feature matters. */
    QString urgency;
    /** Whether a bug is critical. */
    bool critical = false;
    /** Full text of each log of a crash. */
    QStringList crashLogs;

    /** The document; characters that XML cannot hold are dropped. */
    QByteArray toXml() const;
};
