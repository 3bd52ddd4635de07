#pragma once

#include "preview/sheets/SheetOptions.h"

#include <QList>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLineEdit;
class QRadioButton;
class QSpinBox;
class QVBoxLayout;

/** All that can be chosen for a sheet. */
class SheetForm : public QWidget
{
    Q_OBJECT

public:
    /** @param selected how many designs are selected; @param shown how many are shown */
    SheetForm(int selected, int shown, const SheetOptions &options, QWidget *parent = nullptr);

    SheetOptions options() const;
    /** Whether the sheet is for the selected designs rather than for all that are shown. */
    bool isForSelection() const;

signals:
    void changed();

private:
    QGroupBox *createKind(const SheetOptions &options);
    QGroupBox *createDesigns(int selected, int shown);
    QGroupBox *createPaper(const SheetOptions &options);
    QGroupBox *createContact(const SheetOptions &options);
    QGroupBox *createWork(const SheetOptions &options);
    QRadioButton *addRadio(QVBoxLayout *layout, const QString &text, bool checked);
    QCheckBox *createCheck(const QString &text, bool checked);
    void addFact(QGridLayout *layout, const QString &text, SheetOptions::Fact fact,
                 SheetOptions::Facts chosen);
    void chooseDesigns();
    void kindChosen();

    struct FactBox
    {
        SheetOptions::Fact fact;
        QCheckBox *box;
    };

    const bool m_imperial;
    const int m_selectedCount;
    bool m_designsChosen = false;
    QRadioButton *m_work = nullptr;
    QRadioButton *m_selection = nullptr;
    QRadioButton *m_all = nullptr;
    QComboBox *m_paper = nullptr;
    QComboBox *m_orientation = nullptr;
    QCheckBox *m_pageNumbers = nullptr;
    QLineEdit *m_title = nullptr;
    QSpinBox *m_columns = nullptr;
    QList<FactBox> m_facts;
    QCheckBox *m_folderHeadings = nullptr;
    QCheckBox *m_trueSize = nullptr;
    QGroupBox *m_contactBox = nullptr;
    QGroupBox *m_workBox = nullptr;
};
