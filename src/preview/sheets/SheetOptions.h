#pragma once

#include <optional>
#include <QFlags>
#include <QPageLayout>
#include <QPageSize>
#include <QString>
#include <QVector>

/** What a sheet shows, and on which paper. */
struct SheetOptions
{
    enum Kind {
        Contact, ///< small pictures of many designs
        Work     ///< all about one design, for the machine
    };
    /** What stands under each picture of a contact sheet. */
    enum Fact {
        Name = 1,
        Size = 2,
        Stitches = 4,
        Colors = 8,
        Tags = 16,
        Notes = 32,
        AllFacts = 63
    };
    Q_DECLARE_FLAGS(Facts, Fact)

    Kind kind = Contact;
    QPageSize::PageSizeId paper = QPageSize::A4;
    bool landscape = false;
    /** In the head of a contact sheet; none when empty. */
    QString title;
    /** Of a contact sheet, from 1 to MostColumns. */
    int columns = 4;
    Facts facts = Facts(Name | Size | Stitches | Colors);
    /** Whether a contact sheet puts the designs of each folder together under its name. */
    bool folderHeadings = false;
    bool pageNumbers = true;
    /** Whether a work sheet has a page that shows the design as large as it will be. */
    bool trueSize = true;
    bool imperial = false;

    static constexpr int MostColumns = 8;

    /** The papers that can be chosen. */
    static QVector<QPageSize::PageSizeId> papers()
    {
        return {QPageSize::A3, QPageSize::A4, QPageSize::A5, QPageSize::Letter, QPageSize::Legal};
    }
    /** The one of that name, in any case; none where there is none. */
    static std::optional<QPageSize::PageSizeId> paperOf(const QString &name)
    {
        for (const QPageSize::PageSizeId paper : papers()) {
            if (QPageSize::key(paper).compare(name, Qt::CaseInsensitive) == 0)
                return paper;
        }
        return std::nullopt;
    }

    /** The paper with margins that any printer can keep. */
    QPageLayout pageLayout() const
    {
        constexpr qreal margin = 12.0; // millimetres
        return {QPageSize(paper), landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter};
    }
};

Q_DECLARE_OPERATORS_FOR_FLAGS(SheetOptions::Facts)
