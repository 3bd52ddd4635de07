#include "ui/panels/TagWidget.h"

#include "catalogue/records/LocaleAwareFunctions.h"
#include "catalogue/records/Project.h"
#include "properties/undo/BulkMacro.h"
#include "ui/panels/FlowLayout.h"
#include "ui/panels/TagCompleter.h"
#include "ui/panels/TagLabel.h"
#include "widgets/controls/ScreenReader.h"
#include "widgets/controls/WidePopup.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int ChipSpacing = 4;
constexpr int LeastComboChars = 6;
/** A chip takes a millisecond or two; nobody reads hundreds of them. */
constexpr int ChipsAtOnce = 24;

} // namespace

TagWidget::TagWidget(const QSharedPointer<Project> &project, QWidget *parent)
    : QFrame(parent), m_flowLayout(new FlowLayout(0, ChipSpacing, ChipSpacing)),
      m_moreButton(new QToolButton(this)), m_input(new QWidget(this)),
      m_comboBox(new QComboBox(m_input)), m_addButton(new QPushButton(tr("Add"), m_input)),
      m_project(project), m_mostChips(ChipsAtOnce)
{
    ScreenReader::setRole(this, QAccessible::Grouping);
    setAccessibleName(tr("Tags"));
    createMoreButton();
    createInput();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    // Above the chips, so that it stays where it is however many there are.
    layout->addWidget(m_input);
    layout->addLayout(m_flowLayout);
    layout->addWidget(m_moreButton);
    setTabOrder(m_addButton, m_moreButton);
}

void TagWidget::createMoreButton()
{
    m_moreButton->setObjectName(QStringLiteral("moreTags"));
    m_moreButton->setAutoRaise(true);
    m_moreButton->setFocusPolicy(Qt::StrongFocus);
    m_moreButton->setToolTip(tr("Show more tags"));
    m_moreButton->hide();
    connect(m_moreButton, &QToolButton::clicked, this, &TagWidget::showMoreTags);
}

void TagWidget::createInput()
{
    m_comboBox->setEditable(true);
    m_comboBox->setCompleter(new TagCompleter(m_comboBox));
    m_comboBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_comboBox->setMinimumContentsLength(LeastComboChars);
    m_comboBox->setAccessibleName(tr("New tag"));
    m_comboBox->lineEdit()->setAccessibleName(m_comboBox->accessibleName());
    ScreenReader::setRichToolTip(
        m_comboBox, tr("<p>Select an existing tag from the drop down list or enter a new "
                       "tag. The tag is added to all selected files.</p>"));
    m_comboBox->installEventFilter(this);
    m_comboBox->view()->window()->installEventFilter(this);
    connect(m_comboBox, &QComboBox::textActivated, this, &TagWidget::addTag);
    connect(m_comboBox, &QComboBox::editTextChanged, this, &TagWidget::updateAddButtonState);

    ScreenReader::setRichToolTip(m_addButton, tr("<p>Add tag to all selected files.</p>"));
    m_addButton->setEnabled(false);
    connect(m_addButton, &QPushButton::clicked, this, &TagWidget::addPressed);

    auto *layout = new QHBoxLayout(m_input);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_comboBox, 1);
    layout->addWidget(m_addButton);
    m_input->setEnabled(false);
}

void TagWidget::setAllTagsList(PropertyStringList *allTagsList)
{
    if (m_allTagsList)
        m_allTagsList->unregister(this);
    m_allTagsList = allTagsList;
    if (m_allTagsList)
        m_allTagsList->registerObserver(this);
    updateAllTagsListInComboBox();
}

void TagWidget::setTagLists(const QList<PropertyStringList *> &tagLists)
{
    m_tagLists = tagLists;
    m_observedTagLists.set(m_tagLists);
    m_input->setEnabled(!m_tagLists.isEmpty());
    m_mostChips = ChipsAtOnce;
    updateDisplayedTags();
}

void TagWidget::editTags()
{
    m_comboBox->setFocus(Qt::ShortcutFocusReason);
    emit ensureVisible();
}

void TagWidget::refreshProperties()
{
    updateAllTagsListInComboBox();
    updateDisplayedTags();
}

void TagWidget::observedObjectChanged(const Observable *observable)
{
    if (m_bulkChangeActive)
        return;
    if (observable == m_allTagsList)
        updateAllTagsListInComboBox();
    else
        scheduleDisplayedTags();
}

void TagWidget::addTag(const QString &text)
{
    const QString tag = text.trimmed();
    if (tag.isEmpty()) {
        updateAllTagsListInComboBox();
        return;
    }
    setOnAll(tag);
    m_comboBox->clearEditText();
    m_comboBox->setFocus(Qt::OtherFocusReason);
    emit ensureVisible();
}

void TagWidget::setOnAll(const QString &tag)
{
    changeInBulk(tr("add tag '%1'").arg(tag), [&] {
        addTagToTagLists(tag);
        addTagToAllTagsList(tag);
    });
    refreshProperties();
}

void TagWidget::addPressed()
{
    addTag(m_comboBox->currentText());
}

void TagWidget::updateAddButtonState(const QString &text)
{
    m_addButton->setEnabled(!text.isEmpty());
}

void TagWidget::removeTag(TagLabel *label)
{
    const QString tag = label->text();
    changeInBulk(tr("remove tag '%1'").arg(tag), [&] { removeTagFromLists(tag); });
    refreshProperties();
}

bool TagWidget::eventFilter(QObject *watched, QEvent *event)
{
    // An arrow key would choose, and so add, the next tag at once; let it open the list instead.
    if (watched == m_comboBox && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            m_comboBox->showPopup();
            return true;
        }
    }
    auto *list = qobject_cast<QListView *>(m_comboBox->view());
    if (list && watched == list->window() && event->type() == QEvent::Show)
        WidePopup::widen(list);
    return QFrame::eventFilter(watched, event);
}

void TagWidget::changeInBulk(const QString &text, const std::function<void()> &change)
{
    const QScopedValueRollback<bool> active(m_bulkChangeActive, true);
    BulkMacro macro(m_project->undoStack(), text);
    change();
    macro.finish();
}

void TagWidget::addTagToTagLists(const QString &tag)
{
    for (PropertyStringList *list : qAsConst(m_tagLists)) {
        QStringList tags = list->value();
        if (tags.contains(tag))
            continue;
        tags.append(tag);
        list->setValue(tags, tr("add tag '%1'").arg(tag));
    }
}

void TagWidget::addTagToAllTagsList(const QString &tag)
{
    m_project->addTag(tag);
}

void TagWidget::removeTagFromLists(const QString &tag)
{
    for (PropertyStringList *list : qAsConst(m_tagLists)) {
        QStringList tags = list->value();
        if (tags.removeAll(tag) > 0)
            list->setValue(tags, tr("remove tag '%1'").arg(tag));
    }
}

void TagWidget::updateAllTagsListInComboBox()
{
    m_comboBox->clear();
    if (m_allTagsList)
        m_comboBox->insertItems(0, m_allTagsList->value());
    m_comboBox->clearEditText();
}

void TagWidget::scheduleDisplayedTags()
{
    // A change of many files announces each of them; the chips are counted once for all.
    if (m_displayPending)
        return;
    m_displayPending = true;
    QTimer::singleShot(0, this, &TagWidget::updateDisplayedTags);
}

void TagWidget::updateDisplayedTags()
{
    m_displayPending = false;
    const QHash<QString, int> histogram = createTagHistogram();
    QStringList tags = histogram.keys();
    LocaleAwareFunctions::sort(tags);
    const int hidden = tags.count() - m_mostChips;
    m_moreButton->setText(tr("+ %1 more").arg(hidden));
    m_moreButton->setVisible(hidden > 0);
    tags = tags.mid(0, m_mostChips);

    QList<TagLabel *> pool = m_tagLabels;
    m_tagLabels.clear();
    for (const QString &tag : qAsConst(tags)) {
        const bool onAll = histogram.value(tag) == m_tagLists.count();
        TagLabel *label = pool.isEmpty() ? createNewTagLabel() : pool.takeFirst();
        label->setText(tag);
        label->setMultiSelect(onAll ? TagLabel::SetOnAll : TagLabel::SetOnSome);
        m_tagLabels.append(label);
    }
    for (TagLabel *label : qAsConst(pool)) {
        label->hide();
        label->deleteLater();
    }
}

void TagWidget::showMoreTags()
{
    m_mostChips += ChipsAtOnce;
    updateDisplayedTags();
    // Where the focus was there is no button any more.
    if (!m_moreButton->isVisible())
        m_comboBox->setFocus(Qt::OtherFocusReason);
}

QHash<QString, int> TagWidget::createTagHistogram() const
{
    QHash<QString, int> histogram;
    for (const PropertyStringList *list : m_tagLists) {
        for (const QString &tag : list->value())
            ++histogram[tag];
    }
    return histogram;
}

TagLabel *TagWidget::createNewTagLabel()
{
    auto *label = new TagLabel(QString(), TagLabel::SetOnAll, this);
    m_flowLayout->addWidget(label);
    connect(label, &TagLabel::removeTag, this, &TagWidget::removeTag);
    connect(label, &TagLabel::completeTag, this,
            [this](TagLabel *chip) { setOnAll(chip->text()); });
    // A new chip is the window's last widget; it belongs behind the one before it,
    // ahead of the button for more.
    QWidget *before = m_addButton;
    if (!m_tagLabels.isEmpty())
        before = m_tagLabels.constLast()->removeButton();
    setTabOrder(before, label->removeButton());
    return label;
}
