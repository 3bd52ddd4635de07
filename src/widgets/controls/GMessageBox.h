#pragma once

#include <QMessageBox>

/**
 * A message with a main text and an informative text, both shown as plain text.
 *
 * With a parent the box is a sheet of the parent's window.
 */
class GMessageBox : public QMessageBox
{
    Q_OBJECT

public:
    /** A question has the buttons Yes and No, with No as default; the others have OK. */
    enum Type { Critical, Warning, Information, Question };

    explicit GMessageBox(Type type, QWidget *parent = nullptr, const QString &text = QString(),
                         const QString &informativeText = QString());

    /**
     * Show a box over \a parent, or over the active window when it is null, and wait for it.
     * They return the button that closed the box; Escape on a question counts as No.
     */
    static StandardButton critical(const QString &text, const QString &informativeText = QString(),
                                   QWidget *parent = nullptr);
    static StandardButton warning(const QString &text, const QString &informativeText = QString(),
                                  QWidget *parent = nullptr);
    static StandardButton information(const QString &text,
                                      const QString &informativeText = QString(),
                                      QWidget *parent = nullptr);
    static StandardButton question(const QString &text, const QString &informativeText = QString(),
                                   QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;

private:
    static StandardButton run(Type type, const QString &text, const QString &informativeText,
                              QWidget *parent);
};
