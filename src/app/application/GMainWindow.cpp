#include "app/application/GMainWindow.h"

#include "app/application/GApplication.h"
#include "app/frame/GAction.h"
#include "app/frame/GFileDialog.h"
#include "app/frame/GFileTypeRegistry.h"
#include "base/GSettings.h"
#include "widgets/style/GIcon.h"

#include <algorithm>
#include <QCloseEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>
#include <QSplitter>
#include <QTimer>
#include <QWindow>

namespace {

constexpr int ScreenMargin = 19;
constexpr int StateVersion = 0;

QString geometryKey()
{
    return QStringLiteral("geometry");
}

QString windowStateKey()
{
    return QStringLiteral("windowState");
}

} // namespace

GMainWindow::GMainWindow(QWidget *parent, bool) : QMainWindow(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setContextMenuPolicy(Qt::NoContextMenu);
    createBasicActions();
    connect(qApp, &QApplication::focusChanged, this, &GMainWindow::focusChanged);
    QTimer::singleShot(0, this, &GMainWindow::mainWindowPostInit);
    if (auto *application = GApplication::instance())
        application->registerMainWindow(this);
}

GMainWindow::~GMainWindow()
{
    if (auto *application = GApplication::instance())
        application->unregisterMainWindow(this);
}

void GMainWindow::createBasicActions()
{
    const GIcon saveIcon(QStringLiteral(":/tnw_tools/icons/Icons_Save.svg"));
    m_saveAction = new GAction(saveIcon, tr("&Save project"), this, SLOT(save()));
    m_saveAction->setStatusTip(tr("Save the project to disk"));
    m_saveAction->setShortcut(QKeySequence::Save);
    m_saveAsAction = new GAction(saveIcon, tr("Save &As..."), this, SLOT(saveAs()));
    m_saveAsAction->setStatusTip(tr("Save the project under a new name"));
    m_saveAsAction->setShortcut(QKeySequence::SaveAs);
    m_closeAction = new GAction(tr("Close"), this, SLOT(closeWindow()));
    m_closeAction->setStatusTip(tr("Close project"));
    m_closeAction->setShortcut(QKeySequence::Close);
}

QString GMainWindow::fileName() const
{
    return m_currentFileName;
}

bool GMainWindow::isUsed() const
{
    return !m_currentFileName.isEmpty() || isModified();
}

bool GMainWindow::canOpenFile(const QString &name) const
{
    const GFileType *type = theFileTypeRegistry().typeForFileName(name);
    return type && type->windowClassName() == QLatin1String(metaObject()->className());
}

void GMainWindow::setCurrentFileName(const QString &name)
{
    m_currentFileName = name;
}

QString GMainWindow::currentDataFormat() const
{
    return {};
}

QString GMainWindow::settingsGroup(const QString &group) const
{
    static const QRegularExpression notAlphanumeric(QStringLiteral("[^a-zA-Z0-9]"));
    return group.isEmpty() ? QString(m_currentFileName).remove(notAlphanumeric) : group;
}

QList<QSplitter *> GMainWindow::namedSplitters() const
{
    QList<QSplitter *> splitters = findChildren<QSplitter *>();
    const auto nameless = [](const QSplitter *splitter) {
        return splitter->objectName().isEmpty();
    };
    splitters.erase(std::remove_if(splitters.begin(), splitters.end(), nameless), splitters.end());
    return splitters;
}

void GMainWindow::saveWindowState(const QString &group)
{
    if (!isVisible())
        return;
    GSettings settings;
    settings.beginGroup(QStringLiteral("windowSettings"));
    settings.beginGroup(settingsGroup(group));
    settings.setValue(geometryKey(), saveGeometry());
    settings.setValue(windowStateKey(), saveState(StateVersion));
    const QList<QSplitter *> splitters = namedSplitters();
    for (const QSplitter *splitter : splitters)
        settings.setValue(splitter->objectName(), splitter->saveState());
    writeSettings(settings);
    settings.endGroup();
    settings.endGroup();
}

void GMainWindow::restoreWindowState(const QString &group)
{
    GSettings settings;
    settings.beginGroup(QStringLiteral("windowSettings"));
    settings.beginGroup(settingsGroup(group));
    restoreGeometry(settings.value(geometryKey()).toByteArray());
    restoreState(settings.value(windowStateKey()).toByteArray(), StateVersion);
    readSettings(settings);
    const QList<QSplitter *> splitters = namedSplitters();
    for (QSplitter *splitter : splitters) {
        if (settings.contains(splitter->objectName()))
            splitter->restoreState(settings.value(splitter->objectName()).toByteArray());
    }
    settings.endGroup();
    settings.endGroup();

    // The native window takes up the geometry only when it is shown. Not on the screen: a
    // busy window manager that hears of it late would take the window away after it has
    // been shown for good.
    if (!isVisible()) {
        setAttribute(Qt::WA_DontShowOnScreen);
        setVisible(true);
        setVisible(false);
        setAttribute(Qt::WA_DontShowOnScreen, false);
    }
}

void GMainWindow::showRaiseActivateWindow()
{
    if (isMinimized())
        showNormal();
    raise();
    activateWindow();
}

void GMainWindow::save()
{
    if (m_currentFileName.isEmpty()) {
        saveAs();
        return;
    }
    saveWindowState(QString());
    if (!saveFile(m_currentFileName))
        saveAs();
}

void GMainWindow::saveAs()
{
    const QString filter = GFileDialog::buildFilterFromMap(
        theFileTypeRegistry().getWriteExtensions(this), false, false);
    const QString name =
        GFileDialog::getSaveFileName(this, tr("Save document"), m_currentFileName, filter);
    if (name.isEmpty())
        return;
    setCurrentFileName(name);
    if (saveFile(name))
        saveWindowState(QString());
}

bool GMainWindow::closeWindow()
{
    m_closeConfirmed = !isBusy() && confirmClose();
    if (!m_closeConfirmed)
        return false;
    close();
    return m_closeConfirmed;
}

bool GMainWindow::confirmClose()
{
    if (!isModified())
        return true;
    QMessageBox question(this);
    question.setText(tr("The document has been modified."));
    question.setInformativeText(tr("Do you want to save your changes?"));
    question.setStandardButtons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    question.setDefaultButton(QMessageBox::Save);
    switch (question.exec()) {
    case QMessageBox::Save:
        save();
        return true;
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

void GMainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_closeConfirmed && (isBusy() || !confirmClose())) {
        event->ignore();
        return;
    }
    // The bar goes later than now, since the close may come from one of its menus.
    setMenuBar(nullptr);
    m_editMenu = nullptr;
    saveWindowState(QString());
    shutdownWindow();
}

bool GMainWindow::saveForSessionEnd()
{
    return !isModified();
}

bool GMainWindow::isBusy() const
{
    return false;
}

void GMainWindow::cancelWork() {}

void GMainWindow::shutdownWindow() {}

void GMainWindow::installApplicationMenuItems(QMenu *, QMenu *) {}

void GMainWindow::showPaths(const QStringList &) {}

void GMainWindow::focusChanged(QWidget *, QWidget *) {}

void GMainWindow::mainWindowPostInit()
{
#ifdef Q_OS_MACOS
    // Elsewhere every window may be shown full-screen.
    if (QWindow *window = windowHandle())
        window->setFlag(Qt::WindowFullscreenButtonHint);
#endif
}

void GMainWindow::editMenuAboutToShow() {}

void GMainWindow::resizeHonoringScreenDimensions(int width, int height)
{
    const QRect available = screen()->availableGeometry();
    QRect wanted(0, 0, qMin(width, available.width() - ScreenMargin),
                 qMin(height, available.height() - ScreenMargin));
    wanted.moveCenter(available.center());
    setGeometry(wanted);
}

QMenu *GMainWindow::editMenu()
{
    if (!m_editMenu) {
        m_editMenu = menuBar()->addMenu(tr("&Edit"));
        connect(m_editMenu, &QMenu::aboutToShow, this, &GMainWindow::editMenuAboutToShow);
    }
    return m_editMenu;
}

void GMainWindow::createRecentFileMenu(QMenu *menu)
{
    if (auto *application = GApplication::instance())
        application->recentFileProvider()->addRecentMenuActions(menu->addMenu(tr("Open recent")));
}
