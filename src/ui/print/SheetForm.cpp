#include "ui/print/SheetForm.h"

#include "catalogue/records/DesignTexts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

SheetForm::SheetForm(int selected, int shown, const SheetOptions &options, QWidget *parent)
    : QWidget(parent), m_imperial(options.imperial), m_selectedCount(selected)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(createKind(options));
    layout->addWidget(createDesigns(selected, shown));
    layout->addWidget(createPaper(options));
    layout->addWidget(createContact(options));
    layout->addWidget(createWork(options));
    layout->addStretch();
    // It does not change its width with the kind of the sheet.
    setMinimumWidth(layout->sizeHint().width());
    connect(m_work, &QRadioButton::toggled, this, &SheetForm::kindChosen);
    kindChosen();
}

QRadioButton *SheetForm::addRadio(QVBoxLayout *layout, const QString &text, bool checked)
{
    auto *button = new QRadioButton(text, this);
    button->setChecked(checked);
    layout->addWidget(button);
    return button;
}

QCheckBox *SheetForm::createCheck(const QString &text, bool checked)
{
    auto *box = new QCheckBox(text, this);
    box->setChecked(checked);
    connect(box, &QCheckBox::toggled, this, &SheetForm::changed);
    return box;
}

QGroupBox *SheetForm::createKind(const SheetOptions &options)
{
    auto *group = new QGroupBox(tr("Sheet"), this);
    auto *layout = new QVBoxLayout(group);
    const bool isWork = options.kind == SheetOptions::Work;
    addRadio(layout, tr("&Contact sheet: pictures in rows"), !isWork);
    m_work = addRadio(layout, tr("&Work sheet for each design"), isWork);
    return group;
}

QGroupBox *SheetForm::createDesigns(int selected, int shown)
{
    auto *group = new QGroupBox(tr("Designs"), this);
    auto *layout = new QVBoxLayout(group);
    m_selection = addRadio(layout, tr("&Selected (%1)").arg(DesignTexts::number(selected)), false);
    m_all = addRadio(layout, tr("&All shown (%1)").arg(DesignTexts::number(shown)), false);
    m_selection->setEnabled(selected > 0);
    m_all->setEnabled(shown > 0);
    for (const QRadioButton *button : {m_selection, m_all})
        connect(button, &QRadioButton::clicked, this, [this] { m_designsChosen = true; });
    connect(m_selection, &QRadioButton::toggled, this, &SheetForm::changed);
    return group;
}

QGroupBox *SheetForm::createPaper(const SheetOptions &options)
{
    auto *group = new QGroupBox(tr("Paper"), this);
    auto *layout = new QFormLayout(group);
    m_paper = new QComboBox(group);
    for (const QPageSize::PageSizeId id : SheetOptions::papers())
        m_paper->addItem(QPageSize::key(id), int(id));
    m_paper->setCurrentIndex(m_paper->findData(int(options.paper)));
    m_orientation = new QComboBox(group);
    m_orientation->addItems({tr("Portrait"), tr("Landscape")});
    m_orientation->setCurrentIndex(options.landscape ? 1 : 0);
    layout->addRow(tr("S&ize:"), m_paper);
    layout->addRow(tr("&Orientation:"), m_orientation);
    m_pageNumbers = new QCheckBox(tr("Page &numbers"), group);
    m_pageNumbers->setChecked(options.pageNumbers);
    layout->addRow(m_pageNumbers);
    const auto index = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(m_paper, index, this, &SheetForm::changed);
    connect(m_orientation, index, this, &SheetForm::changed);
    connect(m_pageNumbers, &QCheckBox::toggled, this, &SheetForm::changed);
    return group;
}

QGroupBox *SheetForm::createContact(const SheetOptions &options)
{
    m_contactBox = new QGroupBox(tr("Contact sheet"), this);
    auto *layout = new QVBoxLayout(m_contactBox);
    auto *form = new QFormLayout;
    layout->addLayout(form);
    m_title = new QLineEdit(options.title, m_contactBox);
    m_columns = new QSpinBox(m_contactBox);
    m_columns->setRange(1, SheetOptions::MostColumns);
    m_columns->setValue(options.columns);
    form->addRow(tr("&Title:"), m_title);
    form->addRow(tr("Col&umns:"), m_columns);
    auto *facts = new QGridLayout;
    layout->addLayout(facts);
    addFact(facts, tr("Na&me"), SheetOptions::Name, options.facts);
    addFact(facts, tr("Design si&ze"), SheetOptions::Size, options.facts);
    addFact(facts, tr("Stitc&hes"), SheetOptions::Stitches, options.facts);
    addFact(facts, tr("Co&lors"), SheetOptions::Colors, options.facts);
    addFact(facts, tr("Ta&gs"), SheetOptions::Tags, options.facts);
    addFact(facts, tr("Not&es"), SheetOptions::Notes, options.facts);
    m_folderHeadings = createCheck(tr("By &folder, each with a heading"), options.folderHeadings);
    layout->addWidget(m_folderHeadings);
    connect(m_title, &QLineEdit::textChanged, this, &SheetForm::changed);
    connect(m_columns, QOverload<int>::of(&QSpinBox::valueChanged), this, &SheetForm::changed);
    return m_contactBox;
}

/** In two columns. */
void SheetForm::addFact(QGridLayout *layout, const QString &text, SheetOptions::Fact fact,
                        SheetOptions::Facts chosen)
{
    QCheckBox *box = createCheck(text, chosen.testFlag(fact));
    layout->addWidget(box, m_facts.size() / 2, m_facts.size() % 2);
    m_facts.append({fact, box});
}

QGroupBox *SheetForm::createWork(const SheetOptions &options)
{
    m_workBox = new QGroupBox(tr("Work sheet"), this);
    auto *layout = new QVBoxLayout(m_workBox);
    m_trueSize = createCheck(tr("A page in t&rue size, with the hoop"), options.trueSize);
    layout->addWidget(m_trueSize);
    return m_workBox;
}

/** Until the user says otherwise. */
void SheetForm::chooseDesigns()
{
    // One card is nearly always selected; a contact sheet of it alone is seldom wanted.
    const bool few = m_selectedCount > 1 || (m_selectedCount > 0 && m_work->isChecked());
    const bool forSelection = few || !m_all->isEnabled();
    (forSelection ? m_selection : m_all)->setChecked(true);
}

void SheetForm::kindChosen()
{
    if (!m_designsChosen)
        chooseDesigns();
    m_contactBox->setVisible(!m_work->isChecked());
    m_workBox->setVisible(m_work->isChecked());
    emit changed();
}

bool SheetForm::isForSelection() const
{
    return m_selection->isChecked();
}

SheetOptions SheetForm::options() const
{
    SheetOptions options;
    options.kind = m_work->isChecked() ? SheetOptions::Work : SheetOptions::Contact;
    options.paper = QPageSize::PageSizeId(m_paper->currentData().toInt());
    options.landscape = m_orientation->currentIndex() == 1;
    options.pageNumbers = m_pageNumbers->isChecked();
    options.title = m_title->text().trimmed();
    options.columns = m_columns->value();
    options.facts = {};
    for (const FactBox &fact : m_facts)
        options.facts.setFlag(fact.fact, fact.box->isChecked());
    options.folderHeadings = m_folderHeadings->isChecked();
    options.trueSize = m_trueSize->isChecked();
    options.imperial = m_imperial;
    return options;
}
