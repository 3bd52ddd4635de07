#include "catalogue/scan/PreviewRepair.h"
#include "preview/cache/PreviewCache.h"
#include "preview/cache/PreviewCacheListener.h"
#include "PreviewFixture.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include "support/Rows.h"
#include <functional>
#include <memory>
#include <QtTest>

namespace {

class Listener : public PreviewCacheListener
{
public:
    void previewAvailable() override
    {
        ++calls;
        if (onCall) {
            onCall();
        }
    }

    int calls = 0;
    std::function<void()> onCall;
};

} // namespace

class tst_PreviewCache : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_placeholder = image(":/loading.png");
        QVERIFY(!m_placeholder.isNull());
    }

    void cleanup()
    {
        // Loads that a test did not wait for end here.
        const QSharedPointer<IFile> last = file("last");
        Listener listener;
        PreviewCache::instance().previewImage(last, &listener);
        QTRY_COMPARE(listener.calls, 1);
        PreviewCache::instance().clear();
    }

    void placeholderThenImage()
    {
        PreviewFixture::storePreview("rose", QSize(40, 30), Qt::red);
        PreviewCache &cache = PreviewCache::instance();
        Listener listener;
        QCOMPARE(image(cache.previewImage(file("rose"), &listener)), m_placeholder);
        QCOMPARE(listener.calls, 0);
        QTRY_COMPARE(listener.calls, 1);
        const QImage loaded = image(cache.previewImage(file("rose"), &listener));
        QCOMPARE(loaded.size(), QSize(40, 30));
        QCOMPARE(loaded.pixelColor(20, 15), QColor(Qt::red));
        QCoreApplication::processEvents();
        QCOMPARE(listener.calls, 1);
    }

    void identicalDesignsLoadOnce()
    {
        PreviewCache &cache = PreviewCache::instance();
        QSignalSpy loads(&cache, &PreviewCache::loadPreview);
        Listener first;
        Listener second;
        cache.previewImage(file("twin"), &first);
        cache.previewImage(file("twin"), &second);
        // Painted again while it waits.
        cache.previewImage(file("twin"), &second);
        QCOMPARE(loads.count(), 1);
        QCOMPARE(loads.first().at(1).toString(), PreviewFixture::previewPath("twin"));
        QTRY_COMPARE(first.calls, 1);
        QCOMPARE(second.calls, 1);
    }

    void withoutListenerEachCallLoads()
    {
        PreviewFixture::storePreview("nobody", QSize(8, 8), Qt::blue);
        PreviewCache &cache = PreviewCache::instance();
        QSignalSpy loads(&cache, &PreviewCache::loadPreview);
        cache.previewImage(file("nobody"), nullptr);
        cache.previewImage(file("nobody"), nullptr);
        QCOMPARE(loads.count(), 2);
        QTRY_COMPARE(cache.previewImage(file("nobody"), nullptr).size(), QSize(8, 8));
    }

    void destroyedListenerIsNotCalled()
    {
        PreviewFixture::storePreview("orphan", QSize(8, 8), Qt::green);
        PreviewCache &cache = PreviewCache::instance();
        int calls = 0;
        {
            Listener listener;
            listener.onCall = [&calls]() { ++calls; };
            cache.previewImage(file("orphan"), &listener);
            cache.previewImage(file("orphan too"), &listener);
        }
        QTRY_COMPARE(cache.previewImage(file("orphan"), nullptr).size(), QSize(8, 8));
        QCOMPARE(calls, 0);
    }

    void callbackMayDestroyAnotherListener()
    {
        PreviewCache &cache = PreviewCache::instance();
        std::unique_ptr<Listener> first = std::make_unique<Listener>();
        std::unique_ptr<Listener> second = std::make_unique<Listener>();
        int calls = 0;
        first->onCall = [&]() {
            ++calls;
            second.reset();
        };
        second->onCall = [&]() {
            ++calls;
            first.reset();
        };
        cache.previewImage(file("rivals"), first.get());
        cache.previewImage(file("rivals"), second.get());
        QTRY_COMPARE(calls, 1);
        QVERIFY(!first != !second);
    }

    void clearKeepsOpenRequests()
    {
        PreviewFixture::storePreview("slow", QSize(8, 8), Qt::cyan);
        PreviewCache &cache = PreviewCache::instance();
        Listener listener;
        cache.previewImage(file("slow"), &listener);
        cache.clear();
        QTRY_COMPARE(listener.calls, 1);
        QCOMPARE(cache.previewImage(file("slow"), nullptr).size(), QSize(8, 8));
        cache.clear();
        QCOMPARE(image(cache.previewImage(file("slow"), nullptr)), m_placeholder);
    }

    void whatCannotBeLoadedShowsTheErrorPicture()
    {
        QFile broken(PreviewFixture::previewPath("broken"));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write("\x89PNG\r\n\x1a\n and no more");
        broken.close();
        PreviewFixture::storePreview("far too large", QSize(1, 100000), Qt::red);
        PreviewCache &cache = PreviewCache::instance();
        const QImage error = image(":/render-error.png");
        QVERIFY(!error.isNull());
        for (const char *hash : {"broken", "far too large", "missing", ""}) {
            Listener listener;
            cache.previewImage(file(hash), &listener);
            QTRY_COMPARE(listener.calls, 1);
            QCOMPARE(image(cache.previewImage(file(hash), nullptr)), error);
        }
        // It stays, also when the file is mended, until the memory is cleared.
        PreviewFixture::storePreview("broken", QSize(8, 8), Qt::red);
        QCOMPARE(cache.previewImage(file("broken"), nullptr).size(), error.size());
    }

    void damagedPreviewIsPaintedAgain_data()
    {
        const Rows<QByteArray, bool, bool> row("preview", "designIsAsBefore", "mended");
        const auto whole = QByteArray::fromBase64("iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAA"
                                                  "DUlEQVR42mNk+M9QDwADhgGAWjR9awAAAABJRU5E"
                                                  "rkJggg==");
        QByteArray flipped = whole;
        flipped[45] = char(flipped.at(45) ^ 4);
        row("cut short", whole.left(50), true, true);
        row("empty", "", true, true);
        row("flipped bit", flipped, true, true);
        row("other design", whole.left(50), false, false);
    }

    void damagedPreviewIsPaintedAgain()
    {
        QFETCH(QByteArray, preview);
        QFETCH(bool, designIsAsBefore);
        QFETCH(bool, mended);
        const QTemporaryDir folder;
        const QString path = folder.filePath("a.dst");
        QVERIFY(DstDesign::square().writeTo(path));
        const QByteArray hash =
            QCryptographicHash::hash(CatalogueFolder::read(path), QCryptographicHash::Md5);
        QVERIFY(CatalogueFolder::write(PreviewFixture::previewPath(hash), preview));
        if (!designIsAsBefore)
            QVERIFY(DstDesign::square("Other").writeTo(path));

        PreviewCache &cache = PreviewCache::instance();
        cache.setRepairer(&PreviewRepair::repaint);
        Listener listener;
        const auto design = PreviewFixture::makeFile(&m_project, path, hash);
        cache.previewImage(design, &listener);
        QTRY_COMPARE(listener.calls, 1);
        cache.setRepairer({});
        const QImage shown = image(cache.previewImage(design, nullptr));
        QCOMPARE(shown != image(":/render-error.png"), mended);
        QCOMPARE(image(PreviewFixture::previewPath(hash)), mended ? shown : QImage());
        QVERIFY(QFile::remove(PreviewFixture::previewPath(hash)));
    }

private:
    QSharedPointer<IFile> file(const QByteArray &hash)
    {
        return PreviewFixture::makeFile(&m_project, "/designs/a.dst", hash);
    }
    static QImage image(const QString &path)
    {
        return QImage(path).convertToFormat(QImage::Format_ARGB32);
    }
    static QImage image(const QPixmap &pixmap)
    {
        return pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    }

    const PreviewFixture m_fixture;
    Project m_project;
    QImage m_placeholder;
};

QTEST_MAIN(tst_PreviewCache)
#include "tst_previewcache.moc"
