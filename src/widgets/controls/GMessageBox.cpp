#include "widgets/controls/GMessageBox.h"

#include "widgets/style/WidgetHelper.h"

#include <QApplication>
#include <QLabel>

namespace {

constexpr int LeastTextWidth = 320;

QMessageBox::Icon iconOf(GMessageBox::Type type)
{
    switch (type) {
    case GMessageBox::Critical:
        return QMessageBox::Critical;
    case GMessageBox::Warning:
        return QMessageBox::Warning;
    case GMessageBox::Information:
        return QMessageBox::Information;
    case GMessageBox::Question:
        return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

} // namespace

GMessageBox::GMessageBox(Type type, QWidget *parent, const QString &text,
                         const QString &informativeText)
    : QMessageBox(parent)
{
    setIcon(iconOf(type));
    setTextFormat(Qt::PlainText);
    setText(text);
    setInformativeText(informativeText);
    setWindowTitle(QApplication::applicationDisplayName());
    if (type == Question) {
        setStandardButtons(Yes | No);
        setDefaultButton(No);
        setEscapeButton(No);
    } else {
        setStandardButtons(Ok);
    }
    if (parent) {
        setWindowFlag(Qt::Sheet);
        setWindowModality(Qt::WindowModal);
    }
}

QMessageBox::StandardButton GMessageBox::critical(const QString &text,
                                                  const QString &informativeText, QWidget *parent)
{
    return run(Critical, text, informativeText, parent);
}

QMessageBox::StandardButton GMessageBox::warning(const QString &text,
                                                 const QString &informativeText, QWidget *parent)
{
    return run(Warning, text, informativeText, parent);
}

QMessageBox::StandardButton
GMessageBox::information(const QString &text, const QString &informativeText, QWidget *parent)
{
    return run(Information, text, informativeText, parent);
}

QMessageBox::StandardButton GMessageBox::question(const QString &text,
                                                  const QString &informativeText, QWidget *parent)
{
    return run(Question, text, informativeText, parent);
}

void GMessageBox::showEvent(QShowEvent *event)
{
    const QList<QLabel *> labels = findChildren<QLabel *>();
    for (QLabel *label : labels) {
        const bool isText = label->objectName() == QLatin1String("qt_msgbox_label") ||
                            label->objectName() == QLatin1String("qt_msgbox_informativelabel");
        if (!isText)
            continue;
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setMinimumWidth(LeastTextWidth);
        label->setText(WidgetHelper::breakable(label->text()));
    }
    QMessageBox::showEvent(event);
}

QMessageBox::StandardButton GMessageBox::run(Type type, const QString &text,
                                             const QString &informativeText, QWidget *parent)
{
    GMessageBox box(type, parent ? parent : QApplication::activeWindow(), text, informativeText);
    return static_cast<StandardButton>(box.exec());
}
