#pragma once

#include <QMessageBox>

/**
 * A message with a main text and an informative text, both shown as plain text that can be
 * copied.
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
     * What is shown below the informative text, which there must be: the cause in the user's
     * words, and an address or a path to copy.
     */
    void setExplanation(const QString &explanation) { m_explanation = explanation; }
    QString explanation() const { return m_explanation; }

    /** Shows an error over no window in particular and waits, unless it is being shown already. */
    static void alert(const QString &title, const QString &text);

    /**
     * Show a box over \a parent, or over the active window when it is null, and wait for it.
     * They return the button that closed the box; Escape on a question counts as No. What is
     * being told already is not told twice.
     */
    static StandardButton critical(const QString &text, const QString &informativeText = QString(),
                                   QWidget *parent = nullptr,
                                   const QString &explanation = QString());
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
    void replaceLabel(const QString &name, const QString &text, bool isMain);
    static StandardButton run(Type type, const QString &text, const QString &informativeText,
                              QWidget *parent, const QString &explanation = QString());

    QString m_explanation;
};
