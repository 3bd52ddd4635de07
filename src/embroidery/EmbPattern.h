#pragma once

#include "embroidery/DataPoints.h"
#include "embroidery/EmbThread.h"
#include "embroidery/StitchBlock.h"

#include <QList>
#include <QMap>
#include <QRectF>
#include <QSharedPointer>
#include <QString>

namespace Embroidery {

/** What happens at a point. Only the low 8 bits of a point's data word count. */
enum StitchCommand {
    StitchCommandStitch = 0,
    StitchCommandMove = 1,
    StitchCommandTrim = 2,
    StitchCommandStop = 3,
    StitchCommandEnd = 4,
    StitchCommandColorChange = 5,
    StitchCommandSequinMode = 6,
    StitchCommandSequinEject = 7,
    StitchCommandColorChange9 = 9,
    StitchCommandColorChange226 = 226
};

/** Whether a point's data word asks for the next thread. */
constexpr bool isColorChange(int data)
{
    const int command = data & 0xFF;
    return command == StitchCommandColorChange || command == StitchCommandColorChange9 ||
           command == StitchCommandColorChange226;
}

/**
 * One design in memory: a flat run of points with a command each, the threads
 * in the order of their use, and texts about the design.
 *
 * Coordinates are single-precision floats in tenths of a millimetre. Every
 * command occupies a point, a colour change no less than a stitch. A pattern is
 * built by one reader and then only read, except that threadForIndex() and
 * asStitchBlock() may lengthen the thread list. It belongs to one thread at a
 * time. Nothing here throws; access by index is unchecked.
 */
class EmbPattern
{
public:
    inline static const QString PROP_FILENAME = QStringLiteral("filename");
    inline static const QString PROP_NAME = QStringLiteral("name");
    inline static const QString PROP_CATEGORY = QStringLiteral("category");
    inline static const QString PROP_AUTHOR = QStringLiteral("author");
    inline static const QString PROP_KEYWORDS = QStringLiteral("keywords");
    inline static const QString PROP_COMMENTS = QStringLiteral("comments");

    static QSharedPointer<EmbPattern> create();

    EmbPattern(const EmbPattern &) = delete;
    EmbPattern &operator=(const EmbPattern &) = delete;
    virtual ~EmbPattern() = default;

    float getX(int i) const { return m_points->getX(i); }
    float getY(int i) const { return m_points->getY(i); }
    void setLocation(int i, float x, float y) { m_points->setLocation(i, x, y); }
    int getData(int i) const { return m_points->getData(i); }

    /** The number of points of every command. */
    int size() const { return m_points->size(); }
    int getStitchCount() const { return m_points->size(); }

    /** The number of coordinates: twice getStitchCount(). */
    int stitchCount() const { return m_points->count(); }

    /** True if there are neither points nor threads. */
    bool isEmpty() const;

    float getWidth() const { return m_points->getWidth(); }
    float getHeight() const { return m_points->getHeight(); }
    float getMinX() const { return m_points->getMinX(); }
    float getMaxX() const { return m_points->getMaxX(); }
    float getMinY() const { return m_points->getMinY(); }
    float getMaxY() const { return m_points->getMaxY(); }
    QRectF boundingRect() const { return m_points->boundingRect(); }

    /** Sets memory for @p pointCount points aside; a hint of the readers. */
    void reserve(int pointCount) { m_points->reserve(pointCount); }

    QList<QSharedPointer<EmbThread>> threadList() const { return m_threads; }
    void setThreadList(const QList<QSharedPointer<EmbThread>> &list);
    void addThread(const QSharedPointer<EmbThread> &thread);

    /** Thread @p i; the list is lengthened by random greys until it has one. */
    QSharedPointer<EmbThread> threadForIndex(int i);

    /** A new thread of a random grey. */
    QSharedPointer<EmbThread> getRandomThread() const;

    /** The number of threads that the commands ask for; 0 without a stitch or colour change. */
    int getThreadCount() const;

    /** Adds a row of greys for the colours that the thread list lacks. */
    void ensureAllThreadsSetup();

    /** The design as polylines; a run begins where the last stitch or move ended. */
    QList<StitchBlock> asStitchBlock();

    /** The short name of the format that the design came from, "dst" for instance. */
    QString format() const { return m_format; }
    void setFormat(const QString &format) { m_format = format; }

    /** Stores a text; an empty one removes the key. */
    void setMetadata(const QString &key, const QString &value);
    QString metadata(const QString &key, const QString &defaultValue) const;
    QMap<QString, QString> getMetadata() const { return m_metadata; }
    void setName(const QString &name) { setMetadata(PROP_NAME, name); }
    QString getName() const { return metadata(PROP_NAME, QString()); }
    void setCategory(const QString &category) { setMetadata(PROP_CATEGORY, category); }
    void setAuthor(const QString &author) { setMetadata(PROP_AUTHOR, author); }
    void setKeywords(const QString &keywords) { setMetadata(PROP_KEYWORDS, keywords); }
    void setComments(const QString &comments) { setMetadata(PROP_COMMENTS, comments); }

    void stitchAbs(float x, float y) { addStitchAbs(x, y, StitchCommandStitch); }
    void moveAbs(float x, float y) { addStitchAbs(x, y, StitchCommandMove); }

    /** Adds a point with any command at (x, y). */
    void addStitchAbs(float x, float y, int flags)
    {
        m_points->add(x, y, flags);
        m_lastX = x;
        m_lastY = y;
    }

    /** Adds a point with any command at (dx, dy) from the last one. */
    void addStitchRel(float dx, float dy, int flags)
    {
        addStitchAbs(m_lastX + dx, m_lastY + dy, flags);
    }

    void stitch(float dx, float dy) { addStitchRel(dx, dy, StitchCommandStitch); }
    void move(float dx, float dy) { addStitchRel(dx, dy, StitchCommandMove); }
    void trim(float dx = 0, float dy = 0) { addStitchRel(dx, dy, StitchCommandTrim); }
    void stop(float dx = 0, float dy = 0) { addStitchRel(dx, dy, StitchCommandStop); }
    void end(float dx = 0, float dy = 0) { addStitchRel(dx, dy, StitchCommandEnd); }
    void color_change(float dx = 0, float dy = 0)
    {
        addStitchRel(dx, dy, StitchCommandColorChange);
    }
    void sequin_mode(float dx = 0, float dy = 0) { addStitchRel(dx, dy, StitchCommandSequinMode); }
    void sequin_eject(float dx = 0, float dy = 0)
    {
        addStitchRel(dx, dy, StitchCommandSequinEject);
    }

private:
    EmbPattern();

    int lastColorIndex() const;

    float m_lastX = 0;
    float m_lastY = 0;
    QMap<QString, QString> m_metadata;
    QString m_format;
    QSharedPointer<DataPoints> m_points;
    QList<QSharedPointer<EmbThread>> m_threads;
};

} // namespace Embroidery
