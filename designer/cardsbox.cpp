#include "cardsbox.h"

#include "patternicon.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QSpinBox>

CardsBox::CardsBox(QWidget* parent)
    : QWidget(parent), m_across(AddNumber(tr("Receiving cards across"))),
      m_down(AddNumber(tr("Receiving cards down"))), m_pattern(new QComboBox(this)),
      m_thereAndBack(new QCheckBox(tr("&There and back"), this)), m_picture(new QLabel(this))
{
    for (int i = AutoNumberRowsTopLeft; i <= AutoNumberColumnsBottomLeft; ++i) {
        const auto pattern = static_cast<EnAutoNumberType>(i);
        m_pattern->addItem(PatternIcon(pattern, palette()), PatternName(pattern));
    }
    m_pattern->setAccessibleName(tr("Wiring of the receiving cards"));
    m_pattern->setToolTip(tr("The way of the chain through the cards of a cabinet"));
    m_thereAndBack->setChecked(true);
    m_thereAndBack->setToolTip(tr("Off: each line of cards begins at the same side"));
    m_picture->setAlignment(Qt::AlignCenter);
    m_picture->setMinimumHeight(kCardPicture);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_across, 0, 0);
    layout->addWidget(new QLabel(QStringLiteral("×"), this), 0, 1);
    layout->addWidget(m_down, 0, 2);
    layout->addWidget(m_pattern, 1, 0, 1, 3);
    layout->addWidget(m_thereAndBack, 2, 0, 1, 3);
    layout->addWidget(m_picture, 0, 3, 3, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(2, 1);
    layout->setColumnMinimumWidth(3, kCardPicture * 5 / 4);
    setFocusProxy(m_across);
    connect(m_pattern, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &CardsBox::Show);
    connect(m_thereAndBack, &QCheckBox::toggled, this, &CardsBox::Show);
    Show();
}

QSpinBox* CardsBox::AddNumber(const QString& name)
{
    auto* box = new QSpinBox(this);
    box->setRange(1, kMaxReceiversInTile);
    box->setAccessibleName(name);
    box->setToolTip(tr("%1; at most %2 in a cabinet").arg(name).arg(kMaxReceiversInTile));
    connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, &CardsBox::Show);
    return box;
}

void CardsBox::SetCardsOf(SAddTileInfo& block) const
{
    block.SetCards(QSize(m_across->value(), m_down->value()),
                   static_cast<EnAutoNumberType>(m_pattern->currentIndex()), m_thereAndBack->isChecked());
}

void CardsBox::SetSeveral(bool several)
{
    setEnabled(several);
    if (!several) {
        m_across->setValue(1);
        m_down->setValue(1);
    }
}

/// What is set across leaves so many down, and the other way round.
void CardsBox::Show()
{
    m_across->setMaximum(kMaxReceiversInTile / m_down->value());
    m_down->setMaximum(kMaxReceiversInTile / m_across->value());
    SAddTileInfo block;
    SetCardsOf(block);
    m_pattern->setEnabled(block.multi);
    m_thereAndBack->setEnabled(m_across->value() > 1 && m_down->value() > 1);
    m_picture->setPixmap(CardPicture(block, palette()));
    emit Changed();
}
