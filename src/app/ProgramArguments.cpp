#include "app/ProgramArguments.h"

#include <algorithm>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace {

const char *const OwnOptions[] = {"--flushsettings", "--report-crash", "--do-not-track"};

// Those of Qt and its window systems, with one dash or two.
const char *const QtFlags[] = {"reverse",     "nograb", "dograb", "sync",
                               "widgetcount", "qdebug", "qdevel", "testability"};
const char *const QtOptions[] = {"platform",
                                 "platformpluginpath",
                                 "platformtheme",
                                 "plugin",
                                 "session",
                                 "style",
                                 "stylesheet",
                                 "geometry",
                                 "qwindowgeometry",
                                 "title",
                                 "qwindowtitle",
                                 "icon",
                                 "qwindowicon",
                                 "display",
                                 "name",
                                 "qmljsdebugger"};

template <class List>
bool holds(const List &list, const QString &text)
{
    return std::any_of(std::begin(list), std::end(list),
                       [&](const char *entry) { return text == QLatin1String(entry); });
}

QString pathOf(const QString &name)
{
    const QUrl url(name);
    if (url.isLocalFile())
        return QDir::cleanPath(url.toLocalFile());
    // Rather than a resource, which is what Qt takes such a name for.
    const bool isResource = name.startsWith(QLatin1Char(':'));
    return QDir::cleanPath(
        QFileInfo(isResource ? QStringLiteral("./") + name : name).absoluteFilePath());
}

} // namespace

ProgramArguments::ProgramArguments(const QStringList &arguments)
{
    bool onlyNames = false;
    for (int i = 0; i < arguments.size() && m_request == Run; ++i) {
        const QString &argument = arguments.at(i);
        QString qtName = argument.mid(argument.startsWith(QLatin1String("--")) ? 2 : 1);
        const int equals = qtName.indexOf(QLatin1Char('='));
        if (onlyNames || !argument.startsWith(QLatin1Char('-')) || argument.size() == 1)
            m_names.append(argument);
        else if (argument == QLatin1String("--"))
            onlyNames = true;
        else if (argument == QLatin1String("--help") || argument == QLatin1String("-h"))
            m_request = Help;
        else if (argument == QLatin1String("--version") || argument == QLatin1String("-V") ||
                 argument == QLatin1String("-v"))
            m_request = Version;
        else if (holds(OwnOptions, argument) || argument.startsWith(QLatin1String("--language=")) ||
                 holds(QtFlags, qtName) || (equals > 0 && holds(QtOptions, qtName.left(equals))))
            continue;
        else if (holds(QtOptions, qtName))
            ++i;
        else {
            m_request = Refusal;
            m_unknownOption = argument;
        }
    }
}

QStringList ProgramArguments::paths() const
{
    QStringList paths;
    for (const QString &name : m_names) {
        if (!name.isEmpty() && QFileInfo::exists(pathOf(name)))
            paths.append(pathOf(name));
    }
    return paths;
}

QStringList ProgramArguments::missing() const
{
    QStringList missing;
    for (const QString &name : m_names) {
        if (name.isEmpty() || !QFileInfo::exists(pathOf(name)))
            missing.append(name);
    }
    return missing;
}

QString ProgramArguments::answer() const
{
    const QString usage =
        tr("Usage: %1").arg(QStringLiteral("hoopline-organizer [OPTION]... [FOLDER | DESIGN]..."));
    switch (m_request) {
    case Run:
        break;
    case Help:
        return usage + QLatin1Char('\n') + helpText();
    case Version:
        return QStringLiteral("hoopline-organizer %1\n")
            .arg(QCoreApplication::applicationVersion());
    case Refusal:
        return QStringLiteral("hoopline-organizer: ") +
               tr("Unknown option '%1'.").arg(m_unknownOption) + QLatin1Char('\n') + usage +
               QLatin1Char('\n');
    }
    return {};
}

QString ProgramArguments::helpText() const
{
    return tr("Browse, tag and transfer machine-embroidery designs.\n"
              "A design is shown in the window; a folder that is new is offered for adding.\n"
              "A second start passes them on to the window that is open.\n"
              "\n"
              "Options:\n"
              "  -h, --help        Print this help.\n"
              "  -V, --version     Print the version.\n"
              "  --language=CODE   Use this language: en, de or zh-CN.\n"
              "  --do-not-track    Turn the collection of usage data off.\n"
              "  --flushsettings   Forget all settings and exit.\n"
              "  --report-crash    Only offer to send the report of a crash.\n");
}
