#include "Collection.h"

#include "writers/DesignWriters.h"

#include <QDateTime>
#include <QFile>

#include <stdexcept>

namespace {

constexpr double ShareOfCopies = 0.05;
constexpr double ShareOfDamaged = 0.01;
constexpr double ShareOfOthers = 0.03;
constexpr double FilesInFolder = 40;
constexpr qint64 FirstDate = 1500000000;
constexpr qint64 SecondsBetweenFiles = 1000;

} // namespace

Collection::Collection(const QString &folder, unsigned long long seed)
    : m_folder(folder), m_chance(seed)
{
}

void Collection::write(int count)
{
    for (int i = 0; i < count; ++i) {
        if (m_leftInFolder-- <= 0)
            enterFolder();
        writeDesign(i);
        if (m_chance.happens(ShareOfOthers))
            writeFile(QStringLiteral("About %1.txt").arg(i), "Sew on felt.\n");
    }
}

void Collection::enterFolder()
{
    m_leftInFolder = int(m_chance.logNormal(FilesInFolder, 1.0));
    const int levels = 1 + m_chance.below(4);
    m_subFolder.clear();
    for (int level = 0; level < levels; ++level)
        m_subFolder += QStringLiteral("Set %1/").arg(m_chance.below(8));
    if (!m_folder.mkpath(m_subFolder))
        throw std::runtime_error("cannot make a folder");
}

void Collection::writeDesign(int number)
{
    if (!m_lastBytes.isEmpty() && m_chance.happens(ShareOfCopies)) {
        writeFile(QStringLiteral("Copy %1.%2").arg(number).arg(m_lastFormat), m_lastBytes);
        return;
    }
    if (!m_family || ++m_member == MadeUpDesign::FamilySize) {
        m_family = MadeUpDesign::sew(m_chance);
        m_member = 0;
    }
    const QStringList formats = DesignWriters::formats();
    m_lastFormat = formats.at(m_chance.below(formats.size()));
    m_lastBytes = DesignWriters::write(m_lastFormat, *MadeUpDesign::relative(*m_family, m_member));
    const QByteArray bytes = m_chance.happens(ShareOfDamaged) ? damaged(m_lastBytes) : m_lastBytes;
    writeFile(QStringLiteral("Design %1.%2").arg(number).arg(m_lastFormat), bytes);
}

QByteArray Collection::damaged(QByteArray bytes)
{
    switch (m_chance.below(3)) {
    case 0:
        return QByteArray();
    case 1:
        return bytes.left(bytes.size() / 3);
    default:
        return bytes.fill('?');
    }
}

void Collection::writeFile(const QString &name, const QByteArray &bytes)
{
    QFile file(m_folder.filePath(m_subFolder + name));
    const QDateTime date =
        QDateTime::fromSecsSinceEpoch(FirstDate + SecondsBetweenFiles * m_fileCount++);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() ||
        !file.setFileTime(date, QFileDevice::FileModificationTime))
        throw std::runtime_error("cannot write " + file.fileName().toStdString());
}
