#pragma once

#include "catalogue/scan/PreparedDesign.h"
#include <memory>
#include <QSet>
#include <QSharedPointer>

class IAbortCheck;
class PreviewFolder;
namespace Embroidery {
class EmbPattern;
}

/**
 * Looks into design files: reads and hashes the bytes, makes a design of them, takes down
 * its facts, and paints and writes the preview if there is none yet. Knows nothing of the
 * catalogue. May be used by several threads at once.
 */
class DesignPreparation
{
public:
    /** @param existing the hashes that have a preview, as of the start */
    DesignPreparation(std::shared_ptr<PreviewFolder> previews, QSet<QByteArray> existing);

    /** @param abort when it says stop, the result is of no use */
    PreparedDesign prepare(const DesignJob &job, const IAbortCheck &abort) const;

    /** Pixels on the longer side of a preview. */
    static constexpr double PreviewSize = 400.0;

private:
    using Pattern = QSharedPointer<Embroidery::EmbPattern>;

    PreparedDesign lookInto(const DesignJob &job, const IAbortCheck &abort) const;
    void paint(const Pattern &pattern, PreparedDesign &design, int order,
               const IAbortCheck &abort) const;

    std::shared_ptr<PreviewFolder> m_previews;
    QSet<QByteArray> m_existing;
};
