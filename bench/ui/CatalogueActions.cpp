#include "CatalogueActions.h"

#include "catalogue/models/DesignTotals.h"
#include "catalogue/models/SortOrder.h"
#include "ui/print/SheetPages.h"
#include "ui/SortMenu.h"
#include "WindowProbe.h"

#include <map>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTimer>

using namespace WindowProbe;

namespace {

constexpr int LookInterval = 20; // milliseconds
constexpr int Rest = 300;        // likewise; a page that changes no more is complete

/** Takes the command, up to the moment when what it shows is complete; then that is closed. */
double takeDialog(QAction *command, const std::function<bool(QDialog *)> &isComplete)
{
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialog && isComplete(dialog))
            dialog->reject();
    });
    look.start(LookInterval);
    const double milliseconds = take([command] { command->trigger(); });
    look.stop();
    settle();
    return milliseconds;
}

} // namespace

CatalogueActions::CatalogueActions(QWidget *window, const QList<QSharedPointer<IFile>> &files)
    : m_window(window), m_files(files)
{
}

void CatalogueActions::run()
{
    measureSearches();
    measureOrders();
    measureTotals();
    measureDuplicates();
    measureContactSheet();
}

void CatalogueActions::measureSearches()
{
    auto *search = m_window->findChild<QLineEdit *>(QStringLiteral("searchTextLineEdit"));
    const char *queries[] = {"tag:flowers", "color:red", "fits:130x180", "is:duplicate"};
    for (const char *query : queries) {
        std::vector<double> times;
        for (int round = 0; round < Rounds; ++round) {
            times.push_back(take([&] { search->setText(QString::fromLatin1(query)); }));
            settle();
            search->clear();
            settle();
        }
        // The first one counts what is there more than once.
        if (qstrcmp(query, "is:duplicate") == 0)
            Figure::print("is:duplicate, first time", times.front());
        Figure::print(query, Figure::median(times));
    }
}

void CatalogueActions::measureOrders()
{
    const QList<QAction *> choices = m_window->findChild<SortMenu *>()->actions();
    const QStringList keys = SortOrder::keyNames();
    std::map<int, std::vector<double>> times;
    for (int round = 0; round < Rounds; ++round) {
        for (int i = 1; i <= keys.count(); ++i) {
            const int key = i % keys.count();
            times[key].push_back(take([&] { choices.at(key)->trigger(); }));
            settle();
        }
    }
    for (const auto &[key, milliseconds] : times)
        Figure::print(qPrintable(QStringLiteral("sort by ") + keys.at(key)),
                      Figure::median(milliseconds));
}

void CatalogueActions::measureTotals()
{
    DesignTotals totals;
    Figure::print("totals, in slices of 4 ms", Figure::milliseconds([&] {
                      totals.count(m_files);
                      while (totals.isCounting())
                          QCoreApplication::processEvents();
                  }));
}

void CatalogueActions::measureDuplicates()
{
    Figure::print("find duplicates",
                  takeDialog(command(m_window, QKeySequence(QStringLiteral("Ctrl+Shift+D"))),
                             [](QDialog *dialog) {
                                 auto *pages = dialog->findChild<QStackedWidget *>();
                                 return pages && pages->currentIndex() == 1;
                             }));
}

void CatalogueActions::measureContactSheet()
{
    SheetPages *pages = nullptr;
    QElapsedTimer rest;
    const double milliseconds =
        takeDialog(command(m_window, QKeySequence(QKeySequence::Print)), [&](QDialog *dialog) {
            if (!pages) {
                pages = dialog->findChild<SheetPages *>();
                rest.start();
                QObject::connect(pages, &SheetPages::changed, [&rest] { rest.restart(); });
            }
            return rest.hasExpired(Rest);
        });
    Figure::print("contact sheet of all, first page", milliseconds);
}
