#include "online/UpdateDialog.h"

#include "app/addons/GApplicationAddons.h"
#include "base/GSettings.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int TextWidth = 340;
constexpr int PictureSize = 64;
constexpr int PictureGap = 14;
constexpr int TextGap = 8;
constexpr int ButtonGap = 16;

QLabel *plainLabel(const QString &text)
{
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(TextWidth);
    label->setText(text);
    return label;
}

} // namespace

UpdateDialog::UpdateDialog(const AvailableUpdate &update, QWidget *parent)
    : QDialog(parent, Qt::Sheet), m_update(update)
{
    setWindowTitle(tr("Software update"));
    auto *texts = new QVBoxLayout;
    texts->setSpacing(TextGap);
    addTexts(texts);
    auto *top = new QHBoxLayout;
    top->setSpacing(PictureGap);
    addPicture(top);
    top->addLayout(texts);
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(ButtonGap);
    layout->addLayout(top);
    addButtons(layout);
}

void UpdateDialog::addPicture(QHBoxLayout *layout)
{
    const GApplicationAddons *addons = GApplicationAddons::addons();
    const QPixmap pixmap = addons ? addons->updaterPixmap() : QPixmap();
    if (pixmap.isNull())
        return;
    auto *picture = new QLabel;
    const qreal ratio = devicePixelRatioF();
    QPixmap scaled = pixmap.scaled(QSize(PictureSize, PictureSize) * ratio, Qt::KeepAspectRatio,
                                   Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    picture->setPixmap(scaled);
    layout->addWidget(picture, 0, Qt::AlignTop);
}

void UpdateDialog::addTexts(QVBoxLayout *layout)
{
    const QString program = QGuiApplication::applicationDisplayName();
    QLabel *headline = plainLabel(tr("A new version of %1 is available!").arg(program));
    QFont font = headline->font();
    font.setBold(true);
    headline->setFont(font);
    layout->addWidget(headline);
    layout->addWidget(
        plainLabel(tr("%1 %2 is now available; you have %3.")
                       .arg(program, m_update.version, QCoreApplication::applicationVersion())));
    if (m_update.hasReleaseNotes()) {
        const QString address =
            QString::fromLatin1(m_update.releaseNotes.toEncoded()).toHtmlEscaped();
        auto *notes =
            new QLabel(QStringLiteral("<a href=\"%1\">%2</a>").arg(address, tr("Release notes")));
        notes->setObjectName(QStringLiteral("releaseNotes"));
        notes->setTextFormat(Qt::RichText);
        notes->setToolTip(address);
        notes->setTextInteractionFlags(Qt::TextBrowserInteraction);
        notes->setOpenExternalLinks(true);
        layout->addWidget(notes);
    }
    if (!m_update.canBeInstalled())
        layout->addWidget(plainLabel(
            tr("The address of the download is not secure, so it cannot be opened from here.")));
    layout->addStretch();
}

void UpdateDialog::addButtons(QVBoxLayout *layout)
{
    auto *buttons = new QDialogButtonBox;
    auto *installButton = buttons->addButton(tr("Install update"), QDialogButtonBox::AcceptRole);
    auto *laterButton = buttons->addButton(tr("Remind me later"), QDialogButtonBox::RejectRole);
    auto *skipButton =
        buttons->addButton(tr("Skip this version"), QDialogButtonBox::DestructiveRole);
    installButton->setObjectName(QStringLiteral("install"));
    laterButton->setObjectName(QStringLiteral("later"));
    skipButton->setObjectName(QStringLiteral("skip"));
    layout->addWidget(buttons);
    installButton->setEnabled(m_update.canBeInstalled());
    // The focus too, or the Enter key would press the first button that can have it.
    auto *defaultButton = m_update.canBeInstalled() ? installButton : laterButton;
    defaultButton->setDefault(true);
    defaultButton->setFocus();
    connect(installButton, &QPushButton::clicked, this, &UpdateDialog::install);
    connect(laterButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(skipButton, &QPushButton::clicked, this, &UpdateDialog::skip);
}

void UpdateDialog::install()
{
    QDesktopServices::openUrl(m_update.download);
    accept();
}

void UpdateDialog::skip()
{
    GSettings().addSkippedVersion(m_update.version);
    reject();
}
