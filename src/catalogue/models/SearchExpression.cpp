#include "catalogue/models/SearchExpression.h"

#include "catalogue/records/IFile.h"

/** As QFileInfo has it, without the cost of one for each design. */
static QString completeBaseName(const QString &path)
{
    const QString name = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
    return name.left(name.lastIndexOf(QLatin1Char('.')));
}

void SearchExpression::setText(const QString &text)
{
    // A short text must stand as a whole word.
    const QString boundary = text.length() <= 2 ? QStringLiteral("\\b") : QString();
    m_expression = QRegExp(boundary + QRegExp::escape(text) + boundary, Qt::CaseInsensitive);
}

bool SearchExpression::matches(const IFile &file) const
{
    if (m_expression.isEmpty())
        return true;
    return isIn(completeBaseName(file.absoluteFilePath())) || isIn(file.notes());
}
