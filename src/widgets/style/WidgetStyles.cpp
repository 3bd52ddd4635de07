#include "widgets/style/WidgetStyles.h"

#include "widgets/style/WidgetHelper.h"

#include <QApplication>
#include <QEvent>
#include <QFontInfo>
#include <QTimer>
#include <QToolTip>
#include <QWidget>

namespace {

constexpr QColor DarkCardLabel(0x28, 0x2e, 0x31);

/** Carries a change of the palette to where Qt does not carry it by itself. */
class PaletteFollower : public QObject
{
public:
    explicit PaletteFollower(QObject *parent) : QObject(parent) { updateToolTips(); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == parent() && event->type() == QEvent::ApplicationPaletteChange) {
            updateToolTips();
            // The widgets get their new palettes after this event.
            QTimer::singleShot(0, this, &PaletteFollower::readStyleSheetsAgain);
        }
        return false;
    }

private:
    static void updateToolTips()
    {
        QPalette palette = QGuiApplication::palette();
        palette.setColor(QPalette::Window, palette.color(QPalette::ToolTipBase));
        palette.setColor(QPalette::WindowText, palette.color(QPalette::ToolTipText));
        QToolTip::setPalette(palette);
    }

    /** A style sheet keeps the palette's colours that it was read with. */
    static void readStyleSheetsAgain()
    {
        const QWidgetList widgets = QApplication::allWidgets();
        for (QWidget *widget : widgets) {
            if (!widget->styleSheet().isEmpty())
                widget->setStyleSheet(QString(widget->styleSheet()));
        }
    }
};

} // namespace

void WidgetStyles::init()
{
    // Without it, widgets with a style sheet would keep the palette that they began with.
    QCoreApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles);
    qApp->installEventFilter(new PaletteFollower(qApp));
}

QColor WidgetStyles::Accent()
{
    return WidgetHelper::isDarkMode() ? Primary300 : Primary500;
}

QPalette WidgetStyles::GraphicsViewPalette()
{
    QPalette palette = QGuiApplication::palette();
    const QColor window = palette.color(QPalette::Window);
    const QColor sheet = WidgetHelper::isDarkMode() ? window.darker(130) : window.darker(106);
    palette.setColor(QPalette::Base, sheet);
    palette.setColor(QPalette::Window, sheet);
    return palette;
}

QColor WidgetStyles::CardGround()
{
    return WidgetHelper::isDarkMode() ? DarkCard : QColor(Qt::white);
}

QColor WidgetStyles::CardLabel(bool selected)
{
    if (WidgetHelper::isDarkMode())
        return selected ? Primary700 : DarkCardLabel;
    return selected ? Primary100 : Primary25;
}

QColor WidgetStyles::CardText()
{
    return WidgetHelper::isDarkMode() ? QColor(Qt::white) : QColor(Qt::black);
}

QColor WidgetStyles::CardFocus()
{
    return WidgetHelper::isDarkMode() ? Primary300 : Primary700;
}

QPalette WidgetStyles::EditFieldDefault()
{
    QPalette palette = QGuiApplication::palette();
    const QColor window = palette.color(QPalette::Disabled, QPalette::Window);
    palette.setColor(QPalette::Disabled, QPalette::Base, window);
    return palette;
}

// No background here: the widgets inside would inherit it, buttons and fields included.
QString WidgetStyles::LeftSideBar()
{
    return QStringLiteral("#leftSidebar { border: 0; }");
}

QString WidgetStyles::RightSideBar()
{
    return QStringLiteral("#RightSideBar, #PropertiesBoxScrollArea { border: 0; }");
}

QString WidgetStyles::ToolButton_FlatStyle()
{
    return QStringLiteral(
        "QToolButton { border: 1px solid transparent; border-radius: 5px; padding: 2px; "
        "background: transparent; }\n"
        "QToolButton:hover { background: palette(midlight); }\n"
        "QToolButton:pressed { background: palette(mid); }\n"
        "QToolButton:checked { border-color: palette(mid); background: palette(midlight); }\n"
        "QToolButton:focus { border: 2px solid palette(highlight); padding: 1px; }\n");
}

QString WidgetStyles::NoticeStyle(bool problem)
{
    const bool dark = WidgetHelper::isDarkMode();
    constexpr QColor amber(0xff, 0xf1, 0xd6);
    constexpr QColor deepAmber(0x4a, 0x3a, 0x1c);
    const QColor background =
        problem ? (dark ? deepAmber : amber) : (dark ? Primary900 : Primary50);
    return QStringLiteral("#notice { background: %1; border: 0; "
                          "border-bottom: 1px solid palette(mid); }")
        .arg(background.name());
}

QString WidgetStyles::TagLabelAllSelected()
{
    return createTagLabelStyle(true);
}

QString WidgetStyles::TagLabelSomeSelected()
{
    return createTagLabelStyle(false);
}

QString WidgetStyles::createTagLabelStyle(bool allSelected)
{
    const QPalette palette = QGuiApplication::palette();
    const bool dark = WidgetHelper::isDarkMode();
    const auto current = [&palette](QPalette::ColorRole role) {
        return palette.color(role).name();
    };
    const auto disabled = [&palette](QPalette::ColorRole role) {
        return palette.color(QPalette::Disabled, role).name();
    };

    const QString background = allSelected ? disabled(QPalette::Button) : current(QPalette::Window);
    const QString text =
        allSelected ? current(QPalette::ButtonText) : disabled(QPalette::ButtonText);
    const QString darkBorder = allSelected ? current(QPalette::Button) : disabled(QPalette::Button);
    const QString border = dark ? darkBorder : current(QPalette::Mid);
    const QString fontSize =
        QString::number(QFontInfo(QApplication::font()).pointSize()) + QLatin1String("pt");
    const QString hover = current(!dark && allSelected ? QPalette::Window : QPalette::Button);
    const QString hoverText = current(QPalette::ButtonText);

    return QStringLiteral(".TagLabel {border:1px solid %3; background-color:%1; "
                          "border-radius: 5px; margin:0px; padding:0;}\n"
                          "QToolButton {color:%2;font-size:%4; border:0px; "
                          "border-top-right-radius: 5px; border-bottom-right-radius: 5px}\n"
                          "ElidedLabel {color:%2; font-size:%4; background-color:%1; "
                          "border-right: 1px solid %3; padding:0 5px 0 5px; "
                          "border-top-left-radius: 5px;  border-bottom-left-radius: 5px}\n"
                          "QToolButton:hover {background-color:%5; color:%6}\n")
        .arg(background, text, border, fontSize, hover, hoverText);
}
