#include "widgets/controls/About.h"

#include "app/addons/GApplicationAddons.h"
#include "base/GTranslationLoader.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QIcon>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

namespace {

constexpr int IconSize = 96;

QLabel *addLine(QVBoxLayout *layout, const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignHCenter);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(label);
    return label;
}

} // namespace

About::About(QWidget *parent) : QDialog(parent)
{
    const QString name = QApplication::applicationDisplayName();
    setWindowTitle(tr("About %1").arg(name));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 24, 32, 16);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    QLabel *icon = addLine(layout, QString());
    icon->setTextInteractionFlags(Qt::NoTextInteraction);
    icon->setPixmap(QApplication::windowIcon().pixmap(IconSize, IconSize));
    QLabel *title = addLine(layout, name);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    font.setBold(true);
    title->setFont(font);
    addLine(layout, versionText());

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addSpacing(12);
    layout->addWidget(buttons);
}

QString About::versionText()
{
    const QString date = GTranslationLoader::instance()->locale().toString(
        GApplicationAddons::buildDate(), QLocale::LongFormat);
    return tr("Version %1\nBuilt on %2").arg(QApplication::applicationVersion(), date);
}
