#pragma once

#include <OrvanData/orvandata.h>

#include <QDialog>

class CardsBox;
class DocumentController;
class QComboBox;
class QDialogButtonBox;
class QFormLayout;
class QLabel;
class QSpinBox;

/// Asks for a block of equal cabinets. While it is open the wall shows where the block would lie.
class BlockDialog : public QDialog
{
    Q_OBJECT

public:
    BlockDialog(const DocumentController& document, QWidget* parent); ///< [keep] the document

    SAddTileInfo GetBlock() const;

signals:
    void BlockChanged(const SAddTileInfo& block);

private:
    QSpinBox* AddNumber(const QString& name, int least, int most, int value);
    void AddPair(QFormLayout& form, const QString& label, QWidget* first, const QString& between,
                 QWidget* second);
    void FillPorts();
    void FillProducts();
    const CProduct* GetProduct() const; ///< [ref] null: a plain size
    void TakeProduct();
    void ShowBlock();

    const DocumentController& m_document;
    QSpinBox* m_columns;
    QSpinBox* m_rows;
    QSpinBox* m_width;
    QSpinBox* m_height;
    QSpinBox* m_left;
    QSpinBox* m_top;
    CardsBox* m_cards;
    QComboBox* m_product;
    QComboBox* m_port;
    QLabel* m_about;
    QDialogButtonBox* m_buttons;
};
