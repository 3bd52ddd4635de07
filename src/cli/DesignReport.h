#pragma once

#include "cli/DesignFile.h"
#include "cli/JsonWriter.h"
#include <QCoreApplication>

/** Tells about designs: as JSON, one line each, or as tables for people. */
class DesignReport
{
    Q_DECLARE_TR_FUNCTIONS(DesignReport)

public:
    explicit DesignReport(StandardOutput &output) : m_output(output), m_json(output) {}

    void writeJson(const DesignFile &file, bool withPoints);
    /** The file must be readable. */
    void writeTable(const DesignFile &file);

private:
    void writeThreads(const Embroidery::EmbPattern &pattern);
    void writePoints(const Embroidery::EmbPattern &pattern);
    void writeRow(const QString &label, const QString &text);

    StandardOutput &m_output;
    JsonWriter m_json;
};
