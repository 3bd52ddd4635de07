#include "ui/panels/FilterBar.h"

#include "app/application/HooplineApplication.h"
#include "base/GlobalSettings.h"
#include "base/GTranslationLoader.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/records/Project.h"
#include "embroidery/EmbroideryIO.h"
#include "embroidery/HoopSizes.h"
#include "ui/panels/SearchCompleter.h"
#include "ui/panels/SearchHelpMenu.h"
#include "ui/panels/SearchMessage.h"
#include "ui_FilterBarUI.h"
#include "widgets/style/GIcon.h"
#include "widgets/style/WidgetStyles.h"

#include <optional>
#include <QKeyEvent>
#include <QLocale>
#include <QShortcut>

namespace {

constexpr double MillimetresPerInch = 25.4;

/** What the search field needs beside the other fields to be of use. */
constexpr int LeastSearchWidth = 120;

/** A number, with a point or as people who have the language write it. */
std::optional<double> number(const QString &text)
{
    bool ok = false;
    double value = text.toDouble(&ok);
    if (!ok) {
        QLocale locale = GTranslationLoader::instance()->locale();
        // A comma between thousands would be taken for one before a fraction.
        locale.setNumberOptions(QLocale::RejectGroupSeparator);
        value = locale.toDouble(text, &ok);
    }
    return ok ? std::optional(value) : std::nullopt;
}

} // namespace

FilterBar::FilterBar(QWidget *parent, const QSharedPointer<Project> &project, IFilterModel *filter)
    : QWidget(parent), m_ui(std::make_unique<Ui_FilterBarUI>()), m_filter(filter)
{
    m_ui->setupUi(this);
    initWidgets();
    createSearchAids(project);
    connectWidgets();
    createShortcut();
    updateFileTypes();
    updateSizeWidgets();
}

FilterBar::~FilterBar() = default;

void FilterBar::initWidgets()
{
    m_ui->clearTextButton->setIcon(GIcon(QStringLiteral(":/icons/small_clear.svg")));
    m_ui->favoritesButton->setIcon(GIcon(QStringLiteral(":/icons/small_favorite_off.svg"),
                                         QStringLiteral(":/icons/small_favorite_on.svg")));
    m_ui->refreshButton->setIcon(GIcon(QStringLiteral(":/icons/small_refresh.svg")));
    m_ui->searchHelpButton->setIcon(GIcon(QStringLiteral(":/icons/small_help.svg")));
    for (QToolButton *button : buttons())
        button->setStyleSheet(WidgetStyles::ToolButton_FlatStyle());
    for (QComboBox *box : {m_ui->widthCombobox, m_ui->heightCombobox}) {
        // Completing what is typed would turn a 10 into the 100 of the list.
        box->setCompleter(nullptr);
        box->setInsertPolicy(QComboBox::NoInsert);
        // Some assistive technologies take the chosen text for the name of a box.
        box->setAccessibleDescription(box->accessibleName());
        box->lineEdit()->setAccessibleName(box->accessibleName());
    }
    m_ui->searchTextLineEdit->installEventFilter(this);
}

void FilterBar::connectWidgets()
{
    connect(m_ui->fileTypeCombobox, &QComboBox::currentTextChanged, this,
            &FilterBar::setTypeFilter);
    connect(m_ui->widthCombobox, &QComboBox::currentTextChanged, this, &FilterBar::setSizeFilter);
    connect(m_ui->heightCombobox, &QComboBox::currentTextChanged, this, &FilterBar::setSizeFilter);
    connect(m_ui->searchTextLineEdit, &QLineEdit::textChanged, this,
            &FilterBar::setSearchTextFilter);
    connect(m_ui->searchTextLineEdit, &QLineEdit::returnPressed, this, &FilterBar::selectRemark);
    connect(m_filter, &IFilterModel::searchTextChanged, this, &FilterBar::showSearch);
    connect(m_ui->favoritesButton, &QToolButton::clicked, m_filter,
            &IFilterModel::setFavoritesOnly);
    connect(m_ui->refreshButton, &QToolButton::clicked, m_filter, &IFilterModel::refreshFilter);
    connect(m_ui->clearTextButton, &QToolButton::clicked, m_ui->searchTextLineEdit,
            &QLineEdit::clear);
    if (HooplineApplication *application = HooplineApplication::instance())
        connect(application, &HooplineApplication::syncGlobalSettings, this,
                &FilterBar::updateSizeWidgets);
}

void FilterBar::createSearchAids(const QSharedPointer<Project> &project)
{
    new SearchCompleter(m_ui->searchTextLineEdit, [project] { return project->allTags(); });
    auto *help = new SearchHelpMenu(this);
    m_ui->searchHelpButton->setMenu(help);
    // The question mark says it; there is no room for an arrow.
    m_ui->searchHelpButton->setStyleSheet(
        WidgetStyles::ToolButton_FlatStyle() +
        QStringLiteral("QToolButton::menu-indicator { image: none; }"));
    connect(help, &SearchHelpMenu::fieldChosen, this, &FilterBar::addFieldToSearch);
    m_message = new SearchMessage(this);
    m_message->setObjectName(QStringLiteral("searchMessage"));
    m_ui->rows->addWidget(m_message);
}

void FilterBar::createShortcut()
{
    auto *find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, this, &FilterBar::search);
}

void FilterBar::search()
{
    m_ui->searchTextLineEdit->setFocus(Qt::ShortcutFocusReason);
    m_ui->searchTextLineEdit->selectAll();
}

QSize FilterBar::minimumSizeHint() const
{
    const int size = m_ui->horizontalLayout_4->minimumSize().width();
    const QMargins margins = layout()->contentsMargins();
    return QSize(qMax(minimumWidthOfSearchRow(), size) + margins.left() + margins.right(),
                 QWidget::minimumSizeHint().height());
}

void FilterBar::setTypeFilter(const QString &text)
{
    m_filter->setFileType(text == tr("any") ? QString() : text);
}

void FilterBar::setSizeFilter()
{
    const auto millimetres = [this](const QComboBox *box) {
        const std::optional<double> value = number(box->currentText());
        return value ? *value * m_sizeUnitFactor : -1.0;
    };
    m_filter->setMaxDesignSize(
        QSizeF(millimetres(m_ui->widthCombobox), millimetres(m_ui->heightCombobox)));
}

void FilterBar::setSearchTextFilter(const QString &text)
{
    m_filter->setSearchSubstring(text);
}

void FilterBar::showSearch(const QString &text)
{
    QLineEdit *field = m_ui->searchTextLineEdit;
    if (field->text() != text)
        field->setText(text);
    m_message->setRemark(m_filter->searchRemark(), field);
}

void FilterBar::selectRemark()
{
    if (const auto remark = m_filter->searchRemark())
        m_ui->searchTextLineEdit->setSelection(remark->position, remark->length);
}

void FilterBar::addFieldToSearch(const QString &name)
{
    QLineEdit *field = m_ui->searchTextLineEdit;
    const QString text = field->text();
    const bool needsBlank = !text.isEmpty() && !text.back().isSpace();
    field->setFocus(Qt::OtherFocusReason);
    field->end(false);
    field->insert((needsBlank ? QStringLiteral(" ") : QString()) + name + QLatin1Char(':'));
}

QList<QToolButton *> FilterBar::buttons() const
{
    return {m_ui->clearTextButton, m_ui->searchHelpButton, m_ui->favoritesButton,
            m_ui->refreshButton};
}

void FilterBar::updateSizeWidgets()
{
    m_ui->widthCombobox->clear();
    m_ui->heightCombobox->clear();
    const bool imperial = GlobalSettings().imperialUnits();
    m_sizeUnitFactor = imperial ? MillimetresPerInch : 1.0;
    m_ui->maxSizeLabel->setText(tr("Max. size (%1):").arg(imperial ? tr("in") : tr("mm")));
    const QStringList sizes = QStringList(tr("any")) + Embroidery::HoopSizes::sides(imperial);
    for (QComboBox *box : {m_ui->widthCombobox, m_ui->heightCombobox})
        box->insertItems(box->count(), sizes);
}

void FilterBar::updateFileTypes()
{
    QStringList types = Embroidery::EmbroideryIO::supportedFormats();
    types.replaceInStrings(QStringLiteral("*."), QString());
    m_ui->fileTypeCombobox->clear();
    m_ui->fileTypeCombobox->addItem(tr("any"));
    m_ui->fileTypeCombobox->addItems(types);
}

void FilterBar::clear()
{
    for (QComboBox *box : {m_ui->fileTypeCombobox, m_ui->widthCombobox, m_ui->heightCombobox}) {
        box->setCurrentIndex(0);
        if (box->isEditable())
            box->setEditText(box->itemText(0));
    }
    m_ui->searchTextLineEdit->clear();
    m_ui->favoritesButton->setChecked(false);
    m_filter->setFavoritesOnly(false);
}

void FilterBar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    setTwoRows(width() < widthOfOneRow());
    layout()->activate();
    m_message->setTextIndent(m_ui->searchTextLineEdit->x() - layout()->contentsMargins().left());
}

bool FilterBar::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress;
    if (isKey && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        m_ui->searchTextLineEdit->clear();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

int FilterBar::minimumWidthOfSearchRow() const
{
    int width = m_ui->horizontalLayout_2->minimumSize().width() +
                m_ui->horizontalLayout_5->spacing() +
                m_ui->searchTextLineEdit->minimumSizeHint().width();
    for (const QToolButton *button : buttons())
        width += button->sizeHint().expandedTo(button->minimumSize()).width() +
                 m_ui->horizontalLayout_3->spacing();
    return width;
}

int FilterBar::widthOfOneRow() const
{
    const int caption = m_ui->label_4->sizeHint().width() + m_ui->horizontalLayout_3->spacing();
    const int fields = m_ui->horizontalLayout_4->minimumSize().width() + LeastSearchWidth -
                       m_ui->searchTextLineEdit->minimumSizeHint().width();
    const int margins = layout()->contentsMargins().left() + layout()->contentsMargins().right();
    return minimumWidthOfSearchRow() + caption + fields + m_ui->horizontalLayout_5->spacing() +
           margins;
}

void FilterBar::setTwoRows(bool twoRows)
{
    if (twoRows == m_twoRows)
        return;
    m_twoRows = twoRows;
    QHBoxLayout *size = m_ui->horizontalLayout_4;
    if (twoRows) {
        m_ui->horizontalLayout_5->removeItem(size);
        m_ui->rows->addLayout(size);
        m_ui->rows->setAlignment(size, Qt::AlignLeft);
    } else {
        m_ui->rows->removeItem(size);
        size->setAlignment(Qt::Alignment());
        m_ui->horizontalLayout_5->insertLayout(1, size);
    }
    updateTabOrder();
    m_ui->label_4->setVisible(!twoRows);
    m_ui->searchTextLineEdit->setPlaceholderText(
        twoRows ? m_ui->searchTextLineEdit->accessibleName() : QString());
}

void FilterBar::updateTabOrder()
{
    const QWidgetList sizes{m_ui->widthCombobox, m_ui->heightCombobox};
    QWidgetList search{m_ui->searchTextLineEdit};
    for (QToolButton *button : buttons())
        search.append(button);
    QWidget *previous = m_ui->fileTypeCombobox;
    const QWidgetList order = m_twoRows ? search + sizes : sizes + search;
    for (QWidget *widget : order) {
        setTabOrder(previous, widget);
        previous = widget;
    }
}
