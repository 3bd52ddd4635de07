#include "embroidery/support/PatternText.h"

#include "embroidery/EmbroideryIO.h"
#include "embroidery/IOException.h"

#include <QStringList>

using namespace Embroidery;

namespace TestSupport {

QString pointsText(const EmbPattern &pattern)
{
    const QString letters = "SMTHECQq";
    QStringList words;
    for (int i = 0; i < pattern.size(); ++i) {
        words.append(QStringLiteral("%1%2,%3")
                         .arg(letters.at(pattern.getData(i)))
                         .arg(static_cast<double>(pattern.getX(i)))
                         .arg(static_cast<double>(pattern.getY(i))));
    }
    return words.join(QLatin1Char(' '));
}

QString threadsText(const EmbPattern &pattern)
{
    QStringList words;
    for (const auto &thread : pattern.threadList()) {
        words.append(QStringLiteral("%1 %2/%3/%4/%5")
                         .arg(thread->getHexColor(), thread->getDescription(),
                              thread->getCatalogNumber(), thread->getBrand(), thread->getChart()));
    }
    return words.join("; ");
}

QString metadataText(const EmbPattern &pattern)
{
    QStringList words;
    const QMap<QString, QString> metadata = pattern.getMetadata();
    for (auto it = metadata.cbegin(); it != metadata.cend(); ++it)
        words.append(it.key() + QLatin1Char('=') + it.value());
    return words.join("; ");
}

QString read(const QString &extension, const QByteArray &bytes)
{
    try {
        return pointsText(*design(extension, bytes));
    } catch (const IOException &e) {
        return "! " + e.message;
    }
}

QSharedPointer<EmbPattern> design(const QString &extension, const QByteArray &bytes)
{
    return EmbroideryIO::readByteArray("design." + extension, bytes);
}

QByteArray hex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

} // namespace TestSupport
