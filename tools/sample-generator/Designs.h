#pragma once

#include "embroidery/EmbPattern.h"
#include <QSharedPointer>
#include <QVector>

using SampleMaker = QSharedPointer<Embroidery::EmbPattern> (*)();

/** The samples of each category, in the order in which they are written. Their names become the
    file names. */
QVector<SampleMaker> flowers();
QVector<SampleMaker> animals();
QVector<SampleMaker> letters();
QVector<SampleMaker> shapes();
