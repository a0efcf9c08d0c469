#pragma once

#include "pageform.h"

class CPort;
class PortActions;
struct SPortPlace;

/// The current port: whether it is shown and locked, how full it is, what it backs up.
class PortPage : public PageForm
{
    Q_OBJECT

public:
    PortPage(DocumentController& document, SenderEdits& edits, PortActions& actions,
             QWidget* parent); ///< [keep] all

private:
    const CPort& Port() const;
    SPortPlace Place() const;
    QString CabinetText() const;
    QString LoadText() const;
    QString CapacityText() const;
};
