#pragma once

#include "viewtool.h"

#include <QCoreApplication>
#include <QPointF>

class CTile;
class DesignView;
class DocumentController;
class QLineF;

/// Chains the cabinets of the current port one after the other: those that are clicked, or that the mouse is
/// dragged over. With Shift one is inserted behind the one selected.
class NumberTool : public ViewTool
{
    Q_DECLARE_TR_FUNCTIONS(NumberTool)

public:
    NumberTool(DesignView& view, DocumentController& document) : m_view(view), m_document(document) {}

    QCursor GetCursor() const override { return Qt::CrossCursor; }
    QString GetHint() const override;
    void Press(const QMouseEvent& event) override;
    void Move(const QMouseEvent& event) override;
    void Release(const QMouseEvent& event) override;
    bool Key(const QKeyEvent& event) override;
    void Cancel() override; ///< what was numbered before stays, as one step

private:
    CTile* TileAt(const QPointF& wall) const;
    void Insert(CTile& tile);
    void NumberAlong(const QLineF& way); ///< wall pixels

    DesignView& m_view;             ///< [keep]
    DocumentController& m_document; ///< [keep]
    bool m_held = false;
    QPointF m_last; ///< wall pixels
};
