#pragma once

#include "common/seam.h"
#include "common/smd5.h"

#include <QList>
#include <QString>
#include <QUuid>

class CSender;

/// What the layout asks of the rooms above it: the settings, the product library and the open project.
/// Every question has a harmless answer, which stands while nothing is installed.
class LayoutLookup
{
public:
    /// What a product type says of the cabinets made from it.
    struct Product
    {
        QString name;
        bool multi = false;
        bool multiSet = false;
    };

    virtual ~LayoutLookup() = default;

    virtual bool IsRotateEnabled() const { return false; }
    virtual bool FindProduct(const SMD5&, Product*) const { return false; }

    virtual CSender* FindSender(const QUuid&) const { return nullptr; }
    virtual CSender* CurrentSender() const { return nullptr; }
    virtual QList<CSender*> Senders() const { return {}; } ///< in project order

    /// Tells the open project that cabinets of this type are in use, so that it carries the parameter file.
    virtual void AddParameterFile(const QString& /*name*/, const SMD5&) {}
};

inline LayoutLookup* GetLayoutLookup()
{
    return Seam<LayoutLookup>::Get();
}

inline void SetLayoutLookup(LayoutLookup* lookup)
{
    Seam<LayoutLookup>::Install(lookup);
}
