#include "app/application/HooplineApplication.h"
#include "base/GTranslationLoader.h"
#include "online/metrics/Metrics.h"
#include "ui/MainWindow.h"

#include <QTimer>

int main(int argc, char **argv)
{
    GApplicationAddons::basicInitialization();
    Q_INIT_RESOURCE(tnw_resources);
    Q_INIT_RESOURCE(hoopline_resources);
    Q_INIT_RESOURCE(tnw_translations);
    Q_INIT_RESOURCE(translations);
    HooplineApplication::setWindowFactory([] {
        auto *window = new MainWindow;
        QTimer::singleShot(1000, window,
                           [] { HooplineApplication::instance()->showFeedbackDialog(); });
        return window;
    });
    HooplineApplication app(argc, argv);
    GTranslationLoader::instance()->setTranslations(&app);
    Metrics::createInstance(QStringLiteral("40817263"));
    const int result = app.exec();
    Metrics::deleteInstance();
    return result;
}
