#include "ui/design/DesignLoader.h"

namespace {

constexpr unsigned long PatienceMilliseconds = 1000;

} // namespace

DesignLoader::DesignLoader(QObject *parent)
    : QObject(parent), m_thread(std::make_unique<QThread>()), m_reader(new DesignReader)
{
    qRegisterMetaType<ReadDesign>();
    m_reader->moveToThread(m_thread.get());
    connect(m_thread.get(), &QThread::finished, m_reader, &QObject::deleteLater);
    connect(m_reader, &DesignReader::loaded, this, [this](const ReadDesign &design) {
        // It may have been on its way when another one was asked for.
        if (design.path == m_wanted)
            emit loaded(design);
    });
    m_thread->start();
}

DesignLoader::~DesignLoader()
{
    m_reader->nextNumber();
    m_thread->quit();
    // A thread must not be destroyed while it runs: this one ends with the process.
    if (!m_thread->wait(PatienceMilliseconds))
        static_cast<void>(m_thread.release());
}

void DesignLoader::load(const QString &path)
{
    m_wanted = path;
    const int number = m_reader->nextNumber();
    QMetaObject::invokeMethod(
        m_reader, [reader = m_reader, path, number] { reader->load(path, number); },
        Qt::QueuedConnection);
}
