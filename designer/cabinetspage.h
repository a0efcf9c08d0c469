#pragma once

#include "pageform.h"

class CTile;

/// Where the selected cabinets are and what they are like. What is typed is done to all of them.
class CabinetsPage : public PageForm
{
    Q_OBJECT

public:
    CabinetsPage(DocumentController& document, QWidget* parent); ///< [keep] the document

protected:
    bool TakeSubject() override;

private:
    const DocumentController& m_document;
    QList<CTile*> m_tiles; ///< good while the fields are read
};
