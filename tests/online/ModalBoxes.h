#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QObject>
#include <QStringList>
#include <QTimer>

/** Answers every message box with its default button, and remembers what it said. */
class ModalBoxes : public QObject
{
public:
    ModalBoxes()
    {
        connect(&m_timer, &QTimer::timeout, this, &ModalBoxes::answer);
        m_timer.start(10);
    }

    /** Window title or main text, then the other texts, joined with "|". */
    QStringList texts;

private:
    void answer()
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        QStringList parts{box->windowTitle(), box->text(), box->informativeText()};
        parts.removeAll(QString());
        texts.append(parts.join(QLatin1Char('|')));
        box->done(QMessageBox::Ok);
    }

    QTimer m_timer;
};
