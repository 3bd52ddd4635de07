#include "ui/design/DesignFactsPanel.h"

#include "catalogue/records/DesignTexts.h"
#include "catalogue/records/LocaleAwareFunctions.h"
#include "ui/design/ThreadTable.h"
#include "ui/panels/ElidedLabel.h"

#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int Margin = 10;
constexpr int CaptionSpacing = 6;
constexpr int RowSpacing = 2;
constexpr double UnitsPerMillimetre = 10.0;
const QString Unknown = QStringLiteral("-");

} // namespace

DesignFactsPanel::DesignFactsPanel(QWidget *parent)
    : QWidget(parent), m_fileName(new ElidedLabel(QString(), this)), m_facts(new QFormLayout),
      m_threads(new ThreadTable(this)), m_note(new QLabel(this))
{
    QFont bold = font();
    bold.setBold(true);
    m_fileName->setFont(bold);
    m_facts->setHorizontalSpacing(CaptionSpacing);
    m_facts->setVerticalSpacing(RowSpacing);
    m_size = addFact(tr("Design size"));
    m_hoop = addFact(tr("Hoop"));
    m_stitches = addFact(tr("Number of stitches"));
    m_colors = addFact(tr("Number of colors"));
    m_length = addFact(tr("Thread"));
    m_note->setText(tr("The screen does not tell how large it is: the true size is a guess."));
    m_note->setWordWrap(true);
    m_note->setContentsMargins(Margin, 0, Margin, 0);
    m_note->hide();
    auto *top = new QVBoxLayout;
    top->setContentsMargins(Margin, 0, Margin, 0);
    top->addWidget(m_fileName);
    top->addLayout(m_facts);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, Margin, 0, Margin);
    layout->setSpacing(Margin);
    layout->addLayout(top);
    layout->addWidget(m_threads, 1);
    layout->addWidget(m_note);
    setDesign({}, {}, false);
}

QLabel *DesignFactsPanel::addFact(const QString &caption)
{
    auto *value = new QLabel(this);
    value->setTextFormat(Qt::PlainText);
    m_facts->addRow(tr("%1:", "caption of a value").arg(caption), value);
    return value;
}

void DesignFactsPanel::setFileName(const QString &name)
{
    m_fileName->setText(name);
}

void DesignFactsPanel::setDesign(const QSharedPointer<const SewingOrder> &order,
                                 const std::optional<QSizeF> &hoop, bool imperial)
{
    m_threads->setImperial(imperial);
    m_threads->setDesign(order);
    if (!order) {
        for (QLabel *value : {m_size, m_hoop, m_stitches, m_colors, m_length})
            value->setText(Unknown);
        return;
    }
    m_size->setText(
        LocaleAwareFunctions::toText(order->bounds().size() / UnitsPerMillimetre, imperial));
    m_hoop->setText(hoop ? LocaleAwareFunctions::toText(*hoop, imperial) : tr("no hoop fits"));
    m_stitches->setText(DesignTexts::number(order->pointCount()));
    m_colors->setText(DesignTexts::number(order->threadUses().size()));
    m_length->setText(DesignTexts::threadLength(order->threadLength(), imperial));
}

void DesignFactsPanel::setTrueSizeKnown(bool known)
{
    m_note->setVisible(!known);
}

QString DesignFactsPanel::summary() const
{
    QStringList facts{m_fileName->text()};
    for (int row = 0; row < m_facts->rowCount(); ++row) {
        const auto text = [this, row](QFormLayout::ItemRole role) {
            return static_cast<QLabel *>(m_facts->itemAt(row, role)->widget())->text();
        };
        facts.append(text(QFormLayout::LabelRole) + QLatin1Char(' ') +
                     text(QFormLayout::FieldRole));
    }
    return facts.join(QStringLiteral(", "));
}
