#include "widgets/controls/About2.h"

#include "base/GTranslationLoader.h"
#include "widgets/controls/About.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QTextBrowser>

namespace {

constexpr int IconSize = 128;

struct Look
{
    QColor bannerColor = QColor(0x1d, 0x4d, 0x53);
    int bannerWidth = 300;
};

Look &look()
{
    static Look current;
    return current;
}

QString readLicenses()
{
    const QString name = QStringLiteral(":/about.html");
    QFile file(GTranslationLoader::instance()->localizedFilename(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QLabel *addLine(QVBoxLayout *layout, const QString &text, qreal fontScale)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignHCenter);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * fontScale);
    font.setBold(fontScale > 1.0);
    label->setFont(font);
    layout->addWidget(label);
    // Selectable text keeps the palette of this moment.
    label->setPalette(layout->parentWidget()->palette());
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

About2::About2(QWidget *parent) : QDialog(parent)
{
    setWindowTitle(tr("About %1").arg(QApplication::applicationDisplayName()));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createBanner());
    layout->addWidget(createTextPane(), 1);
    resize(look().bannerWidth + 460, 420);
}

void About2::configure(const QColor &bannerColor, int bannerWidth)
{
    look() = Look{bannerColor, bannerWidth};
}

QWidget *About2::createBanner()
{
    auto *banner = new QWidget;
    QPalette palette = banner->palette();
    palette.setColor(QPalette::Window, look().bannerColor);
    palette.setColor(QPalette::WindowText, Qt::white);
    // Text that can be selected is drawn in the colour of text fields.
    palette.setColor(QPalette::Text, Qt::white);
    banner->setPalette(palette);
    banner->setAutoFillBackground(true);
    banner->setFixedWidth(look().bannerWidth);

    auto *layout = new QVBoxLayout(banner);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(12);
    layout->addStretch();
    QLabel *icon = addLine(layout, QString(), 1.0);
    icon->setTextInteractionFlags(Qt::NoTextInteraction);
    icon->setPixmap(QApplication::windowIcon().pixmap(IconSize, IconSize));
    addLine(layout, QApplication::applicationDisplayName(), 1.6);
    addLine(layout, About::versionText(), 1.0);
    layout->addStretch();
    return banner;
}

QWidget *About2::createTextPane()
{
    auto *pane = new QWidget;
    auto *text = new QTextBrowser;
    text->setOpenExternalLinks(true);
    text->setFrameShape(QFrame::NoFrame);
    text->document()->setDocumentMargin(16);
    text->setAccessibleName(tr("Licenses"));
    text->setHtml(readLicenses() + qtNotice());

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(text, 1);
    auto *footer = new QHBoxLayout;
    footer->setContentsMargins(12, 8, 12, 12);
    footer->addWidget(buttons);
    layout->addLayout(footer);
    return pane;
}

QString About2::qtNotice()
{
    const QString notice = tr("This program uses Qt %1, which is licensed under the GNU Lesser "
                              "General Public License, version 3, and is a library of its own: "
                              "it may be replaced by another build of it.");
    return QStringLiteral("<p>%1</p>").arg(notice.arg(QLatin1String(qVersion())).toHtmlEscaped());
}
