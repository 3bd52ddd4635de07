#include "ui/NoticeRow.h"

#include "widgets/controls/ScreenReader.h"
#include "widgets/style/GIcon.h"
#include "widgets/style/WidgetStyles.h"

#include <algorithm>
#include <memory>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace {

constexpr int IconSize = 20; // pixels
constexpr int Margin = 8;
constexpr int Gap = 10;

QString iconName(Notice::Kind kind)
{
    return kind == Notice::Problem ? QStringLiteral(":/tnw_tools/icons/Box_Warning.svg")
                                   : QStringLiteral(":/tnw_tools/icons/Box_Information.svg");
}

} // namespace

NoticeRow::NoticeRow(const Notice &notice, QWidget *parent)
    : QFrame(parent), m_id(notice.id), m_kind(notice.kind), m_icon(new QLabel(this)),
      m_text(new QLabel(notice.text, this)), m_buttons(new QHBoxLayout)
{
    // Which is read out as soon as it is shown.
    ScreenReader::setRole(this, QAccessible::Notification);
    setObjectName(QStringLiteral("notice"));
    setAccessibleName(notice.text);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    // The keyboard's road goes over the buttons.
    m_text->setFocusPolicy(Qt::ClickFocus);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(Margin * 2, Margin, Margin, Margin);
    layout->setSpacing(Gap);
    layout->addWidget(m_icon);
    layout->addWidget(m_text, 1);
    layout->addLayout(m_buttons);
    setActions(notice.actions);
    if (m_kind == Notice::Information)
        addCloseButton();
    updateColors();
}

QString NoticeRow::text() const
{
    return m_text->text();
}

void NoticeRow::setActions(const QList<Notice::Action> &actions)
{
    const auto sameText = [](const Notice::Action &one, const Notice::Action &other) {
        return one.text == other.text;
    };
    const bool same = std::equal(m_actions.cbegin(), m_actions.cend(), actions.cbegin(),
                                 actions.cend(), sameText);
    m_actions = actions;
    // One of the buttons may have the focus, or be held down at this moment.
    if (!same)
        createButtons();
}

void NoticeRow::createButtons()
{
    while (m_buttons->count() > 0) {
        const std::unique_ptr<QLayoutItem> item(m_buttons->takeAt(0));
        item->widget()->hide();
        item->widget()->deleteLater();
    }
    for (int i = 0; i < m_actions.size(); ++i) {
        auto *button = new QPushButton(m_actions.at(i).text, this);
        button->setAutoDefault(true);
        // A click leaves the keyboard where it is; the row may go with it.
        button->setFocusPolicy(Qt::TabFocus);
        connect(button, &QPushButton::clicked, this, [this, i] {
            // What it does may give the row other actions.
            const auto run = m_actions.at(i).run;
            run();
        });
        m_buttons->addWidget(button);
    }
}

void NoticeRow::addCloseButton()
{
    auto *button = new QToolButton(this);
    button->setIcon(GIcon(QStringLiteral(":/icons/small_clear.svg")));
    button->setToolTip(tr("Close"));
    button->setAccessibleName(tr("Close this message"));
    button->setStyleSheet(WidgetStyles::ToolButton_FlatStyle());
    connect(button, &QToolButton::clicked, this, [this] { emit closed(m_id); });
    layout()->addWidget(button);
}

void NoticeRow::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        updateColors();
}

void NoticeRow::updateColors()
{
    m_icon->setPixmap(GIcon(iconName(m_kind)).pixmap(IconSize, IconSize));
    const QString style = WidgetStyles::NoticeStyle(m_kind == Notice::Problem);
    // Setting a style sheet changes the palette again.
    if (style != styleSheet())
        setStyleSheet(style);
}
