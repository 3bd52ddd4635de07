#include "cli/NoteCommand.h"

#include "catalogue/records/IFile.h"
#include "cli/Annotation.h"
#include "cli/CommandError.h"
#include "cli/CommandLine.h"
#include "cli/DesignSelection.h"
#include "cli/StandardInput.h"

namespace {

QString textOf(const QString &argument)
{
    if (!StandardInput::isDash(argument))
        return argument;
    QString text = QString::fromUtf8(StandardInput::readAll());
    if (text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    return text;
}

} // namespace

QString NoteCommand::summary() const
{
    return tr("Write notes on designs.");
}

QString NoteCommand::description() const
{
    return tr("Writes notes on the designs. A dash reads the text, or the names of the designs, "
              "from standard input. Where there are other notes nothing is changed until you "
              "say what is to become of them.");
}

QList<QCommandLineOption> NoteCommand::options() const
{
    return QList<QCommandLineOption>{
               {QStringLiteral("append"), tr("Write below the notes that are there.")},
               {QStringLiteral("replace"), tr("Replace the notes that are there.")}} +
           DesignSelection::options();
}

int NoteCommand::run(const CommandLine &line) const
{
    const QStringList arguments = line.positionalArguments();
    const bool append = line.isSet("append");
    const bool replace = line.isSet("replace");
    if (arguments.isEmpty())
        throw UsageError(tr("No text given."));
    if (append && replace)
        throw UsageError(tr("Choose one of --append and --replace."));
    if (arguments.count(QStringLiteral("-")) > 1)
        throw UsageError(tr("Only one thing can come from standard input."));
    const DesignSelection selection(line, arguments.mid(1), DesignSelection::Nothing);
    const QString text = textOf(arguments.constFirst());
    return edit(selection, [&](IFile &file, Project &) {
        const QString before = file.notes();
        if (before == text)
            return;
        if (before.isEmpty() || replace)
            file.setNotes(text);
        else if (append)
            file.setNotes(Annotation::joinedNotes(before, text));
        else
            throw Error(tr("%1 has other notes; --append or --replace says what becomes of "
                           "them. Nothing was changed.")
                            .arg(file.absoluteFilePath()));
    });
}
