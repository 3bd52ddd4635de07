#include "ui/panels/PropertiesBox.h"

#include "app/application/HooplineApplication.h"
#include "base/GlobalSettings.h"
#include "catalogue/records/LocaleAwareFunctions.h"
#include "catalogue/records/Project.h"
#include "catalogue/records/Thread.h"
#include "ui/panels/ElidedLabel.h"
#include "ui/panels/PropertyStringMultilineEdit.h"
#include "ui/panels/TagWidget.h"
#include "widgets/style/WidgetStyles.h"

#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QTimer>
#include <utility>

namespace {

constexpr int GroupSpacing = 3;
constexpr int GroupTopMargin = 15;
constexpr int PanelMargin = 8;
constexpr int CaptionSpacing = 6;
constexpr int RowSpacing = 2;
constexpr int ShareOfSideBar = 3;
constexpr int ScrollDelayMs = 100;
constexpr int FileNameRow = 0;

QLabel *createCaption(const QString &text)
{
    auto *label = new QLabel(PropertiesBox::tr("%1:", "caption of a value").arg(text));
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

PropertiesBox::PropertiesBox(QWidget *parent, const QSharedPointer<Project> &project)
    : GSideBarBox(tr("Properties"), parent), m_project(project),
      m_scrollArea(new QScrollArea(this)), m_scrollWidget(new QWidget),
      m_mainLayout(new QVBoxLayout(m_scrollWidget)), m_grid(new QGridLayout),
      m_fileNameValue(new ElidedLabel(QString(), m_scrollWidget)),
      m_nameValue(new ElidedLabel(QString(), m_scrollWidget)),
      m_designSizeValue(new ElidedLabel(QString(), m_scrollWidget)),
      m_stitchCountValue(new ElidedLabel(QString(), m_scrollWidget)),
      m_colorCountValue(new ElidedLabel(QString(), m_scrollWidget)),
      m_notesDescription(QStringLiteral("notes"), tr("Notes"), tr("Notes"))
{
    setObjectName(QStringLiteral("PropertiesBox"));
    setExpandable(false);
    initPanel();
    addSimpleProperties();
    addNotesProperty();
    addTagsField();
    m_mainLayout->addStretch();
    if (HooplineApplication *application = HooplineApplication::instance())
        connect(application, &HooplineApplication::syncGlobalSettings, this, [this] {
            if (m_files.count() == 1)
                observedObjectChanged(m_files.first()->designSizeProp());
        });
    setFiles({});
}

void PropertiesBox::initPanel()
{
    QSizePolicy policy = sizePolicy();
    policy.setVerticalStretch(ShareOfSideBar);
    setSizePolicy(policy);
    m_scrollArea->setObjectName(QStringLiteral("PropertiesBoxScrollArea"));
    m_scrollWidget->setObjectName(QStringLiteral("PropertiesBoxScrollWidget"));
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    m_scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scrollArea->setFocusPolicy(Qt::NoFocus);
    m_scrollArea->setWidget(m_scrollWidget);
    m_mainLayout->setContentsMargins(PanelMargin, GroupSpacing, PanelMargin, PanelMargin);
    m_mainLayout->setSpacing(0);
    m_mainLayout->addLayout(m_grid);
    m_grid->setHorizontalSpacing(CaptionSpacing);
    m_grid->setVerticalSpacing(RowSpacing);
    m_grid->setColumnStretch(0, 0);
    m_grid->setColumnStretch(1, 100);
    contentLayout()->addWidget(m_scrollArea);
}

void PropertiesBox::addSimpleProperties()
{
    m_fileNameCaption = addSimpleProperty(tr("File name"), m_fileNameValue);
    m_nameCaption = addSimpleProperty(tr("Name"), m_nameValue);
    addSimpleProperty(tr("Design size"), m_designSizeValue);
    addSimpleProperty(tr("Number of stitches"), m_stitchCountValue);
    addSimpleProperty(tr("Number of colors"), m_colorCountValue);
    // Nothing below is to move under the pointer when the name comes or goes.
    m_nameRoom = new QLabel;
    m_nameRoom->hide();
    m_grid->addWidget(m_nameRoom, m_rows, 0);
    for (ElidedLabel *value : {m_fileNameValue, m_nameValue, m_designSizeValue})
        value->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QLabel *PropertiesBox::addSimpleProperty(const QString &text, ElidedLabel *value)
{
    QLabel *caption = createCaption(text);
    caption->setBuddy(value);
    value->setCaption(caption->text());
    const int row = m_rows++;
    m_grid->addWidget(caption, row, 0);
    m_grid->addWidget(value, row, 1);
    return caption;
}

QVBoxLayout *PropertiesBox::addGroup(const QString &caption)
{
    auto *group = new QVBoxLayout;
    group->setSpacing(GroupSpacing);
    group->setContentsMargins(0, GroupTopMargin, 0, 0);
    group->addWidget(createCaption(caption));
    m_mainLayout->addLayout(group);
    return group;
}

void PropertiesBox::addNotesProperty()
{
    QVBoxLayout *group = addGroup(tr("Notes"));
    m_notesEdit =
        new PropertyStringMultilineEdit(m_scrollWidget, &m_notesDescription, m_project.data());
    m_notesEdit->widget()->setPalette(WidgetStyles::EditFieldDefault());
    group->addWidget(m_notesEdit->widget());
}

void PropertiesBox::addTagsField()
{
    QVBoxLayout *group = addGroup(tr("Tags"));
    m_tagWidget = new TagWidget(m_project, m_scrollWidget);
    m_tagWidget->setAllTagsList(m_project->allTagsProp());
    connect(m_tagWidget, &TagWidget::ensureVisible, this, &PropertiesBox::scrollToBottomDelayed);
    group->addWidget(m_tagWidget);
}

void PropertiesBox::setFiles(const QList<QSharedPointer<IFile>> &files)
{
    for (const Observable *property : observedProperties())
        property->unregister(this);
    // The editors refer to properties of the old records until they are given new ones.
    const QList<QSharedPointer<IFile>> oldFiles = std::exchange(m_files, files);
    for (const Observable *property : observedProperties())
        property->registerObserver(this);
    placeFileName();
    if (m_files.count() == 1)
        PropertiesBox::observedObjectChanged(nullptr);
    else
        showSelectionCount();
    handOverNotesAndTags();
}

QList<const Observable *> PropertiesBox::observedProperties() const
{
    if (m_files.count() != 1)
        return {};
    const IFile *file = m_files.first().data();
    return {file->absoluteFilePathProp(), file->nameProp(), file->designSizeProp(),
            file->stitchCountProp(), file->threadsProp()};
}

void PropertiesBox::placeFileName()
{
    // How many are selected is no file name, and needs the room.
    const bool isName = m_files.count() == 1;
    m_fileNameCaption->setVisible(isName);
    m_fileNameValue->setCaption(isName ? m_fileNameCaption->text() : QString());
    m_grid->addWidget(m_fileNameValue, FileNameRow, isName ? 1 : 0, 1, isName ? 1 : 2);
}

void PropertiesBox::showSelectionCount()
{
    const int count = m_files.count();
    m_fileNameValue->setText(count > 0 ? tr("%n files selected", nullptr, count)
                                       : tr("no file selected"));
    for (ElidedLabel *value :
         {m_nameValue, m_designSizeValue, m_stitchCountValue, m_colorCountValue})
        value->setText(QStringLiteral("-"));
}

void PropertiesBox::handOverNotesAndTags()
{
    QList<Property *> notes;
    QList<PropertyStringList *> tags;
    notes.reserve(m_files.count());
    tags.reserve(m_files.count());
    for (const QSharedPointer<IFile> &file : qAsConst(m_files)) {
        notes.append(file->notesProp());
        tags.append(file->tagsProp());
    }
    m_notesEdit->setProperties(notes);
    m_tagWidget->setTagLists(tags);
}

void PropertiesBox::observedObjectChanged(const Observable *observable)
{
    if (m_files.count() != 1)
        return;
    updateRows(observable);
    updateNameRow();
}

void PropertiesBox::updateRows(const Observable *observable)
{
    const IFile &file = *m_files.first();
    const auto concerns = [observable](const Observable *property) {
        return !observable || observable == property;
    };
    if (concerns(file.absoluteFilePathProp()))
        m_fileNameValue->setText(QFileInfo(file.absoluteFilePath()).fileName());
    if (concerns(file.nameProp()))
        m_nameValue->setText(file.name());
    if (concerns(file.designSizeProp())) {
        const bool imperial = GlobalSettings().imperialUnits();
        m_designSizeValue->setText(LocaleAwareFunctions::toString(file.designSize(), imperial));
    }
    if (concerns(file.stitchCountProp()))
        m_stitchCountValue->setText(QString::number(file.stitchCount()));
    if (concerns(file.threadsProp()))
        m_colorCountValue->setText(QString::number(file.threadsProp()->count()));
}

void PropertiesBox::updateNameRow()
{
    const IFile &file = *m_files.first();
    const QString fileName = QFileInfo(file.absoluteFilePath()).fileName();
    const bool visible = !file.name().isEmpty() && file.name() != fileName;
    m_nameCaption->setVisible(visible);
    m_nameValue->setVisible(visible);
    m_nameRoom->setVisible(!visible);
}

void PropertiesBox::editTags()
{
    m_tagWidget->editTags();
}

void PropertiesBox::scrollToBottomDelayed()
{
    // The tag widget's new height takes effect first.
    QTimer::singleShot(ScrollDelayMs, this, &PropertiesBox::scrollToBottom);
}

void PropertiesBox::scrollToBottom()
{
    m_scrollArea->ensureVisible(0, 10000, 50, 50);
    // With many chips the field for the next tag is far above the bottom.
    m_scrollArea->ensureWidgetVisible(m_tagWidget->input());
}

void PropertiesBox::changeEvent(QEvent *event)
{
    GSideBarBox::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_notesEdit)
        m_notesEdit->widget()->setPalette(WidgetStyles::EditFieldDefault());
}
