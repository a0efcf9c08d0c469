#pragma once

#include <OrvanData/orvandata.h>

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QSpinBox;

/// Asks how many receiving cards a cabinet has, and how they are wired; with a picture of that.
class CardsBox : public QWidget
{
    Q_OBJECT

public:
    explicit CardsBox(QWidget* parent = nullptr);

    void SetCardsOf(SAddTileInfo& block) const; ///< as asked
    void SetSeveral(bool several);              ///< whether there can be several at all

signals:
    void Changed();

private:
    QSpinBox* AddNumber(const QString& name);
    void Show();

    QSpinBox* m_across;
    QSpinBox* m_down;
    QComboBox* m_pattern;
    QCheckBox* m_thereAndBack;
    QLabel* m_picture;
};
