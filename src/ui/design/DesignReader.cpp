#include "ui/design/DesignReader.h"

void DesignReader::load(const QString &path, int number)
{
    if (number == m_latest)
        emit loaded(ReadDesign::fromFile(path));
}
