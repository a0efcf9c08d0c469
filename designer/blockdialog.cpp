#include "blockdialog.h"

#include "cardsbox.h"
#include "documentcontroller.h"

#include <orvantools/portload.h>
#include <orvantools/wallarea.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMultiMap>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>

namespace {

constexpr int kMostAcross = 4096; ///< columns or rows; a port's own limit is below the product
constexpr int kColumns = 4;
constexpr int kRows = 3;

} // namespace

BlockDialog::BlockDialog(const DocumentController& document, QWidget* parent)
    : QDialog(parent), m_document(document), m_product(new QComboBox(this)), m_port(new QComboBox(this)),
      m_about(new QLabel(this)),
      m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setWindowTitle(tr("Add a block of cabinets"));
    const QSize cabinet = GetConfigData()->GetCustomerTileSize();
    const QRect all = document.GetSender()->GetBound();
    const QRect block(QPoint(all.right() + 1, qMax(0, all.top())),
                      QSize(kColumns * cabinet.width(), kRows * cabinet.height()));
    const QPoint place = OrvanTools::FreePlace(*document.GetSender(), block);
    m_columns = AddNumber(tr("Columns"), 1, kMostAcross, kColumns);
    m_rows = AddNumber(tr("Rows"), 1, kMostAcross, kRows);
    m_width = AddNumber(tr("Width of a cabinet"), 1, kMaxCabinetSize, cabinet.width());
    m_height = AddNumber(tr("Height of a cabinet"), 1, kMaxCabinetSize, cabinet.height());
    m_left = AddNumber(tr("Left"), 0, kMaxCanvasWidth - 1, place.x());
    m_top = AddNumber(tr("Top"), 0, kMaxCanvasHeight - 1, place.y());
    m_cards = new CardsBox(this);
    FillPorts();
    FillProducts();
    auto* rescan = new QToolButton(this);
    rescan->setText(tr("Scan a&gain"));
    rescan->setToolTip(tr("Look for products in %1 again")
                           .arg(QDir::toNativeSeparators(CProductDirectorySet::GetRootDir())));
    connect(rescan, &QToolButton::clicked, this, [this] {
        DocumentController::GetProducts().LoadProductInfo();
        FillProducts();
    });

    auto* form = new QFormLayout(this);
    AddPair(*form, tr("Pro&duct:"), m_product, {}, rescan);
    AddPair(*form, tr("&Columns and rows:"), m_columns, QStringLiteral("×"), m_rows);
    AddPair(*form, tr("Cabinet &size in pixels:"), m_width, QStringLiteral("×"), m_height);
    AddPair(*form, tr("&Left and top in pixels:"), m_left, QStringLiteral(","), m_top);
    form->addRow(tr("&Port:"), m_port);
    form->addRow(tr("&Receiving cards:"), m_cards);
    m_about->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('0')) * 46);
    m_about->setMinimumHeight(fontMetrics().lineSpacing() * 3);
    m_about->setWordWrap(true);
    form->addRow(m_about);
    form->addRow(m_buttons);
    m_buttons->button(QDialogButtonBox::Ok)->setText(tr("&Add"));
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_cards, &CardsBox::Changed, this, &BlockDialog::ShowBlock);
    connect(m_product, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &BlockDialog::TakeProduct);
    connect(m_port, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &BlockDialog::ShowBlock);
    ShowBlock();
    m_columns->setFocus();
    m_columns->selectAll();
}

QSpinBox* BlockDialog::AddNumber(const QString& name, int least, int most, int value)
{
    auto* box = new QSpinBox(this);
    box->setRange(least, most);
    box->setValue(value);
    box->setAccessibleName(name);
    box->setToolTip(tr("%1, %2 to %3").arg(name).arg(least).arg(most));
    connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, &BlockDialog::ShowBlock);
    return box;
}

void BlockDialog::AddPair(QFormLayout& form, const QString& label, QWidget* first, const QString& between,
                          QWidget* second)
{
    auto* row = new QHBoxLayout;
    row->addWidget(first, 1);
    row->addWidget(new QLabel(between, this));
    row->addWidget(second, 1);
    auto* name = new QLabel(label, this);
    name->setBuddy(first);
    form.addRow(name, row);
}

void BlockDialog::FillPorts()
{
    CSender& sender = *m_document.GetSender();
    for (const CPort* port : DocumentController::OpenPorts(sender)) {
        const int i = port->GetPortIndex();
        m_port->addItem(tr("Port %1").arg(i + 1), i);
        if (i == sender.GetRecentPortIndex())
            m_port->setCurrentIndex(m_port->count() - 1);
    }
}

/// By name; the one chosen stays so while it is there.
void BlockDialog::FillProducts()
{
    const SMD5 chosen = m_product->currentData().value<SMD5>();
    m_product->clear();
    QMultiMap<QString, SMD5> products;
    DocumentController::GetProducts().FindProduct([&](CProduct& product) {
        products.insert(product.GetName(), product.GetMd5());
        return false;
    });
    m_product->addItem(tr("Plain size"));
    for (auto product = products.cbegin(); product != products.cend(); ++product)
        m_product->addItem(product.key(), QVariant::fromValue(product.value()));
    m_product->setCurrentIndex(qMax(0, products.values().indexOf(chosen) + 1));
    m_product->setToolTip(tr("A product of the library, with its parameter file, or a size alone"));
}

/// By its digest, since a scan may have replaced it.
const CProduct* BlockDialog::GetProduct() const
{
    return DocumentController::GetProducts().FindProductFromGuid(m_product->currentData().value<SMD5>());
}

/// A product that was not asked for its size has none.
void BlockDialog::TakeProduct()
{
    const CProduct* product = GetProduct();
    const bool isKnown = product && product->GetPixelWidth() > 0 && product->GetPixelHeight() > 0;
    if (isKnown) {
        m_width->setValue(product->GetPixelWidth());
        m_height->setValue(product->GetPixelHeight());
    }
    m_cards->SetSeveral(!isKnown || product->IsMulti());
    ShowBlock();
}

SAddTileInfo BlockDialog::GetBlock() const
{
    SAddTileInfo block;
    block.senderId = m_document.GetSender()->GetId();
    block.portIndex = m_port->currentData().toInt();
    block.left = m_left->value();
    block.top = m_top->value();
    block.columns = m_columns->value();
    block.rows = m_rows->value();
    block.width = m_width->value();
    block.height = m_height->value();
    m_cards->SetCardsOf(block);
    if (const CProduct* product = GetProduct()) {
        block.type = product->GetMd5();
        block.fixedLine = block.multi && product->IsMultiFlagSet();
    }
    return block;
}

void BlockDialog::ShowBlock()
{
    if (m_port->currentIndex() < 0) {
        m_about->setText(tr("Every port is hidden, locked or a backup. Open the one that the block is for."));
        m_buttons->button(QDialogButtonBox::Ok)->setEnabled(false);
        return;
    }
    const SAddTileInfo block = GetBlock();
    const CSender& sender = *m_document.GetSender();
    const CTileSet& tiles = sender.GetPort(block.portIndex)->GetTileSet();
    const qint64 count = qint64(block.columns) * block.rows;
    const QString why = m_document.WhyNotAddable(block);
    const qint64 pixels = OrvanTools::PixelsOf(tiles) + count * block.width * block.height;
    QString load = OrvanTools::CapacityOf(sender).PercentText(pixels);
    QStringList lines{tr("%1 cabinets, %2 × %3 pixels. Port %4 is then %5 full.")
                          .arg(count)
                          .arg(qint64(block.columns) * block.width)
                          .arg(qint64(block.rows) * block.height)
                          .arg(block.portIndex + 1)
                          .arg(load.replace(QLatin1Char(' '), QChar(QChar::Nbsp)))};
    const QRect canvas = OrvanTools::CanvasOf(sender);
    const QRect area = canvas.isNull() ? OrvanTools::LargestCanvasOf(sender) : canvas;
    if (!why.isEmpty())
        lines.append(why);
    else if (!area.contains(block.GetBound()))
        lines.append(tr("Part of it lies beyond the canvas."));
    m_about->setText(lines.join(QLatin1Char('\n')));
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(why.isEmpty());
    emit BlockChanged(block);
}
