#pragma once

#include <chrono>
#include <QByteArray>
#include <QRgb>
#include <QSizeF>
#include <QString>
#include <QVector>

/** A file that may be new or changed, and is to be looked into. */
struct DesignJob
{
    QString path;
    qint64 size;          ///< bytes, as the walk saw it
    QByteArray knownHash; ///< of the catalogue's record; empty when there is none
    int order;            ///< among all jobs; says whose preview counts for the same content

    /** Bytes: of the file, of the points and polylines that it may hold, and of the picture. */
    qint64 memoryNeed() const;
};

/** All that the catalogue wants to know of a file, as plain values. */
struct PreparedDesign
{
    enum State {
        Unreadable, ///< the disk did not give the bytes; nothing else is known
        TooLarge,   ///< not read; size and date are known
        Touched,    ///< the content is the one that is known and has its preview
        Damaged,    ///< no reader could make a design of the bytes
        Read
    };

    struct Thread
    {
        QRgb color;
        QString name;
        QString chart; ///< or the brand, where the chart is not known
    };

    State state = Unreadable;
    QString reason;        ///< why there is no design
    bool vanished = false; ///< it could not be read because it is not there any more
    qint64 size = 0;       ///< bytes
    qint64 modified = 0;   ///< seconds since the epoch
    QByteArray hash;       ///< 16 bytes, of all but the first two states

    QString name;
    QSizeF sizeInMillimetres;
    int stitchCount = 0;
    QVector<Thread> threads;

    bool painted = false; ///< whether the preview was painted anew
    std::chrono::nanoseconds paintingTime{0};

    /** Bytes until it is committed. */
    qint64 memoryNeed() const { return qint64(sizeof *this) + threads.size() * BytesOfThread; }

private:
    static constexpr qint64 BytesOfThread = 256;
};
