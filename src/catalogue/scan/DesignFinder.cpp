#include "catalogue/scan/DesignFinder.h"

#include "base/files/DirectoryScanner.h"
#include "base/threads/BackgroundThread.h"
#include "base/threads/ResponsiveWait.h"

#include <atomic>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <optional>
#include <utility>

/** What the two threads share. To the scanner it is the listener. */
struct DesignFinder::Walk : public IProgressAbortListener
{
    explicit Walk(const QStringList &folders_) : folders(folders_) {}

    /** On the walk's own thread. */
    void run()
    {
        std::exception_ptr thrown;
        FoundFiles all;
        try {
            DirectoryScanner scanner;
            scanner.setAbortCheck(this);
            scanner.setProgressListener(this);
            for (const QString &folder : folders) {
                const FoundFiles found = scanner.find(folder);
                all.files += found.files;
                all.skipped += found.skipped;
            }
        } catch (...) {
            thrown = std::current_exception();
        }
        const std::lock_guard<std::mutex> lock(mutex);
        result = std::move(all);
        error = thrown;
        done = true;
        changed.notify_all();
    }

    void setSteps(int) override {}
    void proceed(const QString &text) override
    {
        const std::lock_guard<std::mutex> lock(mutex);
        texts.append(text);
        changed.notify_all();
    }
    int abortState() const override { return aborted ? 1 : 0; }

    /** The folders entered since the last call, or an empty list at the end of the walk. */
    std::optional<QStringList> takeTexts(std::chrono::milliseconds patience)
    {
        std::unique_lock<std::mutex> lock(mutex);
        if (!changed.wait_for(lock, patience, [this] { return done || !texts.isEmpty(); }))
            return std::nullopt;
        return std::exchange(texts, QStringList());
    }

    FoundFiles takeResult()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (error)
            std::rethrow_exception(error);
        return std::exchange(result, FoundFiles());
    }

    const QStringList folders;
    std::atomic<bool> aborted{false};
    std::mutex mutex;
    std::condition_variable changed;
    QStringList texts;
    FoundFiles result;
    std::exception_ptr error;
    bool done = false;
};

FoundFiles DesignFinder::find(const QStringList &folders, IProgressAbortListener &listener)
{
    const auto walk = std::make_shared<Walk>(folders);
    BackgroundThread::start([walk] { walk->run(); });
    const auto takeTexts = [&walk](auto patience) { return walk->takeTexts(patience); };
    for (;;) {
        const auto texts = waitResponsively(listener, takeTexts);
        if (!texts || texts->isEmpty())
            break;
        for (const QString &text : *texts) {
            listener.proceed(text);
            if (listener.abortState() != 0)
                walk->aborted = true;
        }
    }
    walk->aborted = true;
    return walk->takeResult();
}
