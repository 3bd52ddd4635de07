#include "widgets/controls/GMessageBox.h"

#include "widgets/controls/MessageText.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>

namespace {

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

bool isOpen(const QString &text, const QString &informativeText)
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (const QWidget *widget : widgets) {
        const auto *box = qobject_cast<const GMessageBox *>(widget);
        if (box && box->isVisible() && box->text() == text &&
            box->informativeText() == informativeText)
            return true;
    }
    return false;
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
                                                  const QString &informativeText, QWidget *parent,
                                                  const QString &explanation)
{
    return run(Critical, text, informativeText, parent, explanation);
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

void GMessageBox::alert(const QString &title, const QString &text)
{
    if (isOpen(text, QString()))
        return;
    GMessageBox box(Critical, nullptr, text);
    box.setWindowTitle(title);
    box.exec();
}

void GMessageBox::showEvent(QShowEvent *event)
{
    if (!findChild<MessageText *>()) {
        QString below = informativeText();
        if (!m_explanation.isEmpty())
            below += QStringLiteral("\n\n") + m_explanation;
        replaceLabel(QStringLiteral("qt_msgbox_label"), text(), !below.isEmpty());
        replaceLabel(QStringLiteral("qt_msgbox_informativelabel"), below, false);
    }
    QMessageBox::showEvent(event);
}

void GMessageBox::replaceLabel(const QString &name, const QString &text, bool isMain)
{
    auto *label = findChild<QLabel *>(name);
    if (!label)
        return;
    auto *view = new MessageText(text, this);
    // What happened stands out from what is to be known about it.
    QFont font = label->font();
    font.setBold(isMain);
    view->fit(font);
    delete layout()->replaceWidget(label, view);
    label->hide();
    // Not as late as the layout would: a box that grows when it is on the screen already may
    // be moved into a corner by it.
    view->show();
}

QMessageBox::StandardButton GMessageBox::run(Type type, const QString &text,
                                             const QString &informativeText, QWidget *parent,
                                             const QString &explanation)
{
    // Several clicks in a row have one answer.
    if (type != Question && isOpen(text, informativeText))
        return Ok;
    GMessageBox box(type, parent ? parent : QApplication::activeWindow(), text, informativeText);
    box.setExplanation(explanation);
    return static_cast<StandardButton>(box.exec());
}
