#pragma once

#include "common/interfacedlg.h"
#include "common/seam.h"
#include "settings/languagetype.h"

/// What the settings room asks of the objects above it: the settings in force, the monitoring state and the
/// windows shown. Every question has a harmless answer, which stands while nothing is installed.
class SettingsLookup
{
public:
    virtual ~SettingsLookup() = default;

    virtual ELanguageType Language() const { return GetSystemLanguage(); } ///< of the settings in force

    // Monitoring locks the interfaces while it runs and keeps the states they had before.
    virtual bool IsMonitoring() const { return false; }
    virtual bool StoredReadOnly(int /*interface*/) const { return false; }

    // The host's windows, by the numbers of EInterfaceDlg and of each window's sub-dialogs.
    virtual int CurrentInterface() const { return InterfaceDesign; }
    virtual void SetCurrentInterface(int) {}
    virtual int VideoSourceSubDlg() const { return 0; }
    virtual int DesignSubDlg() const { return 0; }
    virtual void SetDesignSubDlg(int) {}
    virtual int CalibrationSubDlg() const { return 0; }
    virtual int SoftEdgeSubDlg() const { return 0; }
};

inline SettingsLookup* GetSettingsLookup()
{
    return Seam<SettingsLookup>::Get();
}

inline void SetSettingsLookup(SettingsLookup* lookup)
{
    Seam<SettingsLookup>::Install(lookup);
}
