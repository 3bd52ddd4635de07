#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/**
 * What stands behind the program's name. Looked at before there is an application object,
 * so that questions are answered on a terminal without a display. The options that change
 * a run are only known here; those who heed them look for themselves.
 */
class ProgramArguments
{
    Q_DECLARE_TR_FUNCTIONS(ProgramArguments)

public:
    enum Request {
        Run,     ///< the program itself
        Help,    ///< what the options are
        Version, ///< which version this is
        Refusal  ///< there is an unknown option
    };

    /** @param arguments without the program's name */
    explicit ProgramArguments(const QStringList &arguments);

    Request request() const { return m_request; }
    /** The option of a refusal. */
    QString unknownOption() const { return m_unknownOption; }

    /** The files and folders to open, absolute; those of them that are there. */
    QStringList paths() const;
    /** Those that are not there, as they were given. */
    QStringList missing() const;

    /** What the program answers to all but Run, translated. */
    QString answer() const;

private:
    QString helpText() const;

    Request m_request = Run;
    QString m_unknownOption;
    QStringList m_names;
};
