#include "support/Rows.h"
#include "widgets/style/GIcon.h"
#include "widgets/style/Palettes.h"
#include "widgets/style/TnwMacStyle.h"
#include "widgets/style/WidgetHelper.h"
#include "widgets/style/WidgetStyles.h"

#include <memory>
#include <QtTest>
#include <QtWidgets>

using RolePairs = QVector<QPair<QPalette::ColorRole, QPalette::ColorRole>>;

/** The colour that most of the opaque pixels of \a icon have. */
static QColor inkOf(const QIcon &icon, QIcon::Mode mode = QIcon::Normal,
                    QIcon::State state = QIcon::Off)
{
    return icon.pixmap(QSize(16, 16), mode, state).toImage().pixelColor(8, 8);
}

class tst_style : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setStyle(new TnwMacStyle); }

    void init() { QApplication::setPalette(Palettes::light()); }

    void textContrast_data()
    {
        const Rows<QPalette, RolePairs> row("palette", "pairs");
        const RolePairs everywhere{{QPalette::WindowText, QPalette::Window},
                                   {QPalette::Text, QPalette::Base},
                                   {QPalette::PlaceholderText, QPalette::Base},
                                   {QPalette::ButtonText, QPalette::Button},
                                   {QPalette::HighlightedText, QPalette::Highlight},
                                   {QPalette::ToolTipText, QPalette::ToolTipBase},
                                   {QPalette::Link, QPalette::Base},
                                   {QPalette::Link, QPalette::Window},
                                   {QPalette::LinkVisited, QPalette::Base},
                                   {QPalette::LinkVisited, QPalette::Window}};
        // The program's own palettes hold for more: for rows in turns, for buttons under the mouse
        // or pressed, for menus.
        const RolePairs own = everywhere + RolePairs{{QPalette::Text, QPalette::AlternateBase},
                                                     {QPalette::Text, QPalette::Window},
                                                     {QPalette::WindowText, QPalette::Base},
                                                     {QPalette::WindowText, QPalette::Button},
                                                     {QPalette::ButtonText, QPalette::Window},
                                                     {QPalette::ButtonText, QPalette::Midlight},
                                                     {QPalette::ButtonText, QPalette::Mid}};
        row("light", Palettes::light(), own);
        row("dark", Palettes::dark(), own);
        QPalette poor(Qt::gray);
        poor.setColor(QPalette::WindowText, Qt::darkGray);
        poor.setColor(QPalette::Text, Qt::lightGray);
        poor.setColor(QPalette::Highlight, QColor(0x3d, 0xae, 0xe9));
        poor.setColor(QPalette::HighlightedText, Qt::white);
        row("poor desktop palette", poor, everywhere);
    }

    void textContrast()
    {
        QFETCH(QPalette, palette);
        QFETCH(RolePairs, pairs);
        QApplication::style()->polish(palette);
        const RolePairs disabled{{QPalette::WindowText, QPalette::Window},
                                 {QPalette::Text, QPalette::Base},
                                 {QPalette::ButtonText, QPalette::Button}};
        for (QPalette::ColorGroup group :
             {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            for (const auto &pair : group == QPalette::Disabled ? disabled : pairs) {
                const qreal ratio = WidgetHelper::contrast(palette.color(group, pair.first),
                                                           palette.color(group, pair.second));
                QVERIFY2(ratio >= 4.5, qPrintable(QStringLiteral("roles %1 on %2: %3")
                                                      .arg(pair.first)
                                                      .arg(pair.second)
                                                      .arg(ratio)));
            }
        }
    }

    void ownPaletteWhereTheDesktopHasNone()
    {
        const std::unique_ptr<QStyle> fusion(QStyleFactory::create("Fusion"));
        QPalette palette = fusion->standardPalette();
        QApplication::style()->polish(palette);
        QCOMPARE(palette.color(QPalette::Highlight), Palettes::light().color(QPalette::Highlight));

        QPalette desktops = fusion->standardPalette();
        desktops.setColor(QPalette::Highlight, Qt::darkMagenta);
        QApplication::style()->polish(desktops);
        QCOMPARE(desktops.color(QPalette::Highlight), QColor(Qt::darkMagenta));
    }

    void styleSheetsFollowThePalette()
    {
        WidgetStyles::init();
        QWidget window;
        auto *bar = new QFrame(&window);
        bar->setObjectName("leftSidebar");
        bar->setStyleSheet(WidgetStyles::LeftSideBar());
        auto *label = new QLabel("text", bar);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QPalette dark = Palettes::dark();
        QApplication::setPalette(dark);
        QCOMPARE(label->palette().color(QPalette::WindowText), dark.color(QPalette::WindowText));
        QTRY_COMPARE(bar->grab().toImage().pixelColor(1, bar->height() - 2),
                     dark.color(QPalette::Window));
        QCOMPARE(QToolTip::palette().color(QPalette::WindowText),
                 dark.color(QPalette::ToolTipText));
    }

    void tagLabelContrast()
    {
        const QRegularExpression label("ElidedLabel \\{color:(#\\w+).*background-color:(#\\w+)");
        const QRegularExpression hover("hover \\{background-color:(#\\w+); color:(#\\w+)");
        for (const QPalette &palette : {Palettes::light(), Palettes::dark()}) {
            QApplication::setPalette(palette);
            for (bool all : {true, false}) {
                const QString sheet = WidgetStyles::createTagLabelStyle(all);
                for (const QRegularExpression &rule : {label, hover}) {
                    const QRegularExpressionMatch match = rule.match(sheet);
                    QVERIFY(match.hasMatch());
                    QVERIFY(WidgetHelper::contrast(QColor(match.captured(1)),
                                                   QColor(match.captured(2))) >= 4.5);
                }
            }
        }
    }

    void cardsFollowTheLook()
    {
        for (const QPalette &palette : {Palettes::light(), Palettes::dark()}) {
            QApplication::setPalette(palette);
            const bool dark = WidgetHelper::isDarkMode();
            QCOMPARE(WidgetStyles::CardGround().lightness() < 128, dark);
            for (bool selected : {true, false}) {
                const QColor label = WidgetStyles::CardLabel(selected);
                QCOMPARE(label.lightness() < 128, dark);
                QVERIFY(WidgetHelper::contrast(WidgetStyles::CardText(), label) >= 4.5);
                QVERIFY(WidgetHelper::contrast(WidgetStyles::CardFocus(), label) >= 2.5);
            }
            QVERIFY(WidgetHelper::contrast(WidgetStyles::CardLabel(true),
                                           WidgetStyles::CardLabel(false)) >= 1.4);
        }
    }

    void iconFollowsPalette()
    {
        for (const QByteArray &fill : {QByteArray("#46505a"), QByteArray("currentColor")}) {
            QApplication::setPalette(Palettes::light());
            const GIcon icon(writeSvg("ink.svg", fill));
            const QColor window = QApplication::palette().color(QPalette::Window);
            QVERIFY(WidgetHelper::contrast(inkOf(icon), window) >= 4.5);

            QApplication::setPalette(Palettes::dark());
            QVERIFY(WidgetHelper::isDarkMode());
            const QColor darkWindow = QApplication::palette().color(QPalette::Window);
            QVERIFY(WidgetHelper::contrast(inkOf(icon), darkWindow) >= 4.5);
        }
        const GIcon detail(writeSvg("accent.svg", "#2f7f86"));
        QCOMPARE(inkOf(detail), WidgetStyles::Accent());
    }

    void groupTitleIsWhole()
    {
        const QGroupBox box(QStringLiteral("Kontaktbogen"));
        QStyleOptionGroupBox option;
        option.initFrom(&box);
        option.text = box.title();
        option.subControls = QStyle::SC_GroupBoxLabel;
        const QRect title = box.style()->subControlRect(QStyle::CC_GroupBox, &option,
                                                        QStyle::SC_GroupBoxLabel, &box);
        QVERIFY(title.width() >= box.fontMetrics().horizontalAdvance(box.title()));
    }

    void iconStates()
    {
        const GIcon icon(writeSvg("off.svg", "#46505a"), writeSvg("on.svg", "#ff0000"));
        QVERIFY(inkOf(icon, QIcon::Disabled) != inkOf(icon));
        QCOMPARE(inkOf(icon, QIcon::Selected),
                 QApplication::palette().color(QPalette::HighlightedText));
        QCOMPARE(inkOf(icon, QIcon::Normal, QIcon::On), QColor(Qt::red));
        QVERIFY(GIcon(m_dir.filePath("missing.svg")).isNull());
    }

    void iconIsCrisp()
    {
        const GIcon icon(writeSvg("crisp.svg", "#46505a"));
        QImage target(64, 64, QImage::Format_ARGB32_Premultiplied);
        target.setDevicePixelRatio(2.0);
        target.fill(Qt::transparent);
        QPainter painter(&target);
        icon.paint(&painter, QRect(0, 0, 32, 32));
        painter.end();
        QCOMPARE(target.pixelColor(63, 63), inkOf(icon));
        QCOMPARE(icon.pixmap(QSize(200, 200)).size(), QSize(200, 200));
    }

private:
    QString writeSvg(const QString &name, const QByteArray &fill)
    {
        const QString path = m_dir.filePath(name);
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write("<svg xmlns='http://www.w3.org/2000/svg' width='24' height='24'>"
                       "<rect width='24' height='24' fill='" +
                       fill + "'/></svg>");
        return path;
    }

    QTemporaryDir m_dir;
};

QTEST_MAIN(tst_style)
#include "tst_style.moc"
