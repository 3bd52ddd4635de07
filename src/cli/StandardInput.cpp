#include "cli/StandardInput.h"

#include "base/Error.h"
#include "cli/CommandError.h"
#include "cli/LocalPath.h"
#include <cstdio>
#include <QFile>

namespace {

constexpr qint64 LargestInput = qint64(256) * 1024 * 1024;

QByteArray readFrom(QFile &file, const QString &name)
{
    QByteArray bytes = file.read(LargestInput + 1);
    if (file.error() != QFileDevice::NoError)
        throw Error(StandardInput::tr("Failed to read %1: %2").arg(name, file.errorString()));
    if (bytes.size() > LargestInput)
        throw Error(StandardInput::tr("%1 is too large.").arg(name));
    return bytes;
}

} // namespace

QByteArray StandardInput::readAll()
{
    QFile file;
    const QString name = tr("Standard input");
    if (!file.open(stdin, QIODevice::ReadOnly))
        throw Error(tr("Failed to read %1: %2").arg(name, file.errorString()));
    return readFrom(file, name);
}

QByteArray StandardInput::readAll(const QString &name)
{
    if (isDash(name))
        return readAll();
    QFile file(LocalPath::of(name));
    if (!file.open(QIODevice::ReadOnly))
        throw Error(tr("Failed to read %1: %2").arg(name, file.errorString()));
    return readFrom(file, name);
}

QStringList StandardInput::fileNames(bool nullSeparated)
{
    QStringList names;
    const QList<QByteArray> lines = readAll().split(nullSeparated ? '\0' : '\n');
    for (const QByteArray &line : lines) {
        // All behind the first NUL would be left out without a word.
        if (line.contains('\0'))
            throw UsageError(
                tr("The names on standard input end with a NUL; -0 reads such names."));
        if (!line.isEmpty())
            names.append(QFile::decodeName(line));
    }
    return names;
}
