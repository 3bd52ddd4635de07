#pragma once

#include <QString>

namespace Embroidery {

/**
 * One thread: an opaque colour and the texts of its maker. Shared by
 * QSharedPointer; the entries of a chart must not be changed.
 */
class EmbThread
{
public:
    /** @p rgb is 0xRRGGBB; whatever its top byte holds, the thread is opaque. */
    EmbThread(unsigned int rgb, const QString &description, const QString &catalogNumber,
              const QString &brand, const QString &chart);

    /** @p r, @p g and @p b are 0 to 255. */
    EmbThread(int r, int g, int b, const QString &description, const QString &catalogNumber,
              const QString &brand, const QString &chart);

    EmbThread(const EmbThread &) = default;
    EmbThread &operator=(const EmbThread &) = default;
    virtual ~EmbThread() = default;

    QString getDescription() const { return m_description; }
    void setDescription(const QString &description) { m_description = description; }
    QString getCatalogNumber() const { return m_catalogNumber; }
    void setCatalogNumber(const QString &catalogNumber) { m_catalogNumber = catalogNumber; }
    QString getDetails() const { return m_details; }
    void setDetails(const QString &details) { m_details = details; }
    QString getBrand() const { return m_brand; }
    void setBrand(const QString &brand) { m_brand = brand; }
    QString getChart() const { return m_chart; }
    void setChart(const QString &chart) { m_chart = chart; }
    QString getWeight() const { return m_weight; }
    void setWeight(const QString &weight) { m_weight = weight; }

    /** The colour as 0xFFRRGGBB. */
    unsigned int getRGB() const { return m_color; }

    /** The colour as "#rrggbb", in lower case. */
    QString getHexColor() const;

private:
    unsigned int m_color;
    QString m_description;
    QString m_catalogNumber;
    QString m_details;
    QString m_brand;
    QString m_chart;
    QString m_weight;
};

} // namespace Embroidery
