#pragma once

#include "common/export.h"
#include "common/interfacedlg.h"
#include "project/projectrecords.h"

#include <QDomDocument>
#include <QDomElement>
#include <QList>
#include <QString>
#include <QUuid>

class CCustomProgressbar;
class CPort;
class CProjectUndoRedo;
class CSender;
class CTileGroupSet;
class CTileSet;
class QWidget;

/// One project: senders in display order, sender groups, gamma table, parameter files, print form, demo mode.
/// Owns its senders. Indices out of range give null, -1, false or an empty text. What happens to the open one
/// is told by the history of it: CProjectUndoRedo::SetChangeHandler.
class ORVANDATA_EXPORT CProjectData
{
public:
    CProjectData();
    CProjectData(const CProjectData& other);
    ~CProjectData();
    CProjectData& operator=(const CProjectData& other); ///< CopyProject

    void SetToDefault();                         ///< an empty project with a fresh id
    void CopyProject(const CProjectData& other); ///< a deep copy, the id included
    void SetToSpecified(const CProjectData& other) { CopyProject(other); }

    QUuid GetID() const { return m_state.id; }
    void SetID(const QUuid& id) { m_state.id = id; }
    QString GetDeviceSetName() const { return m_state.deviceSetName; }
    void SetDeviceSetName(const QString& name) { m_state.deviceSetName = name; }
    QString GetCurProjectName() const { return m_state.projectName; }
    void SetCurProjectName(const QString& name) { m_state.projectName = name; }

    // senders
    CSender* NewSender();            ///< [ref] appended; current only when it is the first
    void AddSender(CSender* sender); ///< [own] made by new
    CSender* GetSender(int index) const { return m_senders.value(index); } ///< [ref] until it goes, or a load
    int GetSenderCount() const { return m_senders.size(); }
    QList<CSender*> GetSenders() const { return m_senders; } ///< [ref]
    int GetScIndexByID(const QUuid& id) const;
    void SetCurrentSender(int index);                                              ///< ignored out of range
    CSender* GetCurrentSender() const { return GetSender(m_state.currentSender); } ///< [ref]
    int GetCurSenderIndex() const { return m_state.currentSender; }
    int GetCurSenderIndexForRtCnnt() const; ///< 0 when the current index names no sender
    int GetCurPortIndex() const;            ///< the current sender's recent port
    QString GetSenderName(int index) const;
    QString GetShowSenderName(int index,
                              bool numbered) const; ///< "Processor" and the number for a nameless one
    QString GetPortDescription(int sender, int port) const;
    void DeleteSender(const QUuid& id);
    /// False when it may not go. Its background image goes with it; the later senders' images take the
    /// numbers of their senders, unless `keepImages` leaves them under the numbers that they have.
    bool DeleteSender(int index, bool ask, bool keepImages, bool selectPrevious, QWidget* parent);
    bool DeleteSenderBefore(int index, bool ask, QWidget* parent); ///< may it go? Tells the user why not
    void DeleteAllSender();
    /// Appends a sender for each address (host-order IPv4) that none has; only while the detection strategy
    /// is 2.
    bool UpdateProjectSenders(const QList<unsigned long>& first, const QList<unsigned long>& second);
    void CancelAllTileSelect(EInterfaceDlg iface);
    void SelectAllTile(); ///< in the design view
    bool HasTileRotated() const;

    // backups between senders; self-backups do not count
    bool IsSenderBackupDest(int sender, int* source) const; ///< `source`: -1 when it is not in the project
    bool IsSenderBackupSource(int sender, int* dest) const;
    bool IsSenderSelfPortBackup(int sender) const;
    /// The sender and port that a port backs up: by id, else by address; -1, -1 and false when there is none.
    bool MatchSrcBackup(int sender, int port, int& senderOut, int& portOut, bool& found) const;

    // sender groups
    QUuid AddGroupInfo(const QString& name);
    void SetGroupName(const QUuid& id, const QString& name);
    bool GetGroupExpand(const QUuid& id) const;
    void SetGroupExpand(const QUuid& id, bool expanded);
    void DeleteSenderGroup(const QUuid& id); ///< its senders belong to none afterwards
    void GetSendersInGroup(const QUuid& id, QList<QUuid>& senders) const;
    void GetAllSenderGroup(QList<SSenderGroupInfo>& groups) const { groups = m_state.groups; }
    int GetSenderGroupCount() const { return m_state.groups.size(); }
    QUuid GetSenderGroupID(int index) const { return m_state.groups.value(index).id; }
    QUuid GetGroupIDBySenderIndex(int sender) const; ///< null when that group does not exist

    // gamma of product types
    void AddRcvParamGamma(const SMD5& type, float gamma); ///< a type that is there gets the new value
    void SetRcvParamGamma(const SMD5& type, float gamma); ///< a type that is not there is ignored
    bool GetRcvParamGamma(const SMD5& type, float* gamma) const;
    void DeleteRcvParamGamma(const SMD5& type);
    QList<SRcvParamGamma> GetRcvParamGammas() const { return m_state.gamma; }

    // receiver parameter files, kept in the work folder as name + ".rcvbp"
    /// Copies the product's file and lists it; a type that is listed keeps its row. The name becomes one that
    /// is safe in a file system and unlike the other rows'.
    void AddParameterFileInfo(const QString& name, const SMD5& type);
    void DeleteParameterFileInfo(const SMD5& type);
    void ExchangeNameByMD5(const SMD5& type, const QString& newName);
    QList<SParameterFileInfo> GetParameterFiles() const { return m_state.parameterFiles; }

    // print form, demo mode
    SPrintFormData* GetPrintSetData() { return &m_state.print; } ///< [ref]
    const SPrintFormData* GetPrintSetData() const { return &m_state.print; }
    bool GetDemoModeEnable() const { return m_state.demo.enable; }
    void SetDemoModeEnable(bool enable) { m_state.demo.enable = enable; }
    int GetDemoSenderType() const { return m_state.demo.senderType; }
    void SetDemoSenderType(int type) { m_state.demo.senderType = type; }

    // texts
    QString GetMailReceiversString() const; ///< "address,name;" a receiver, of the monitoring settings
    static void SetReceiversFromString(SEmailSetting& setting, const QString& text);
    QString GetVideoInfoString() const; ///< "slot,sourceType,sourceIndex,enable;" an input, of this project
    void SetVideoInfoFromString(SSenderSetting& setting, const QString& text); ///< this project's list too
    QList<SVideoInput> GetVideoInputs() const { return m_state.videoInputs; }
    void SetVideoInputs(const QList<SVideoInput>& inputs) { m_state.videoInputs = inputs; }
    static QString GetColorStr(int channel);                 ///< name of a colour channel in parameter files
    static quint32 GetIntFromOctString(const QString& text); ///< host-order IPv4, or a decimal number; else 0

    // project file
    /// False: refused, and nothing was written. True does not mean that there is an archive: ask
    /// IsArchiveWritten() after each save. With one, for the open document, CProjectUndoRedo::SetAsSaveStep
    /// makes the steps count as saved; what PrjModify marked (senders, sender groups) stays until a load.
    bool SaveProjectToFile(const QString& path, CCustomProgressbar* progress);
    /// `error` receives the minimum version of a file that is too new. On failure the project is as it was.
    bool LoadProjectFromFile(const char* path, QString& error, CCustomProgressbar* progress);
    QString GetMinVersionSupport() const;
    QString GetLastFileError() const { return m_lastFileError; } ///< empty: all that was asked was done
    bool IsArchiveWritten() const { return m_archiveWritten; }   ///< by the last save, perhaps without a part

    // layout files of one sender or one port
    bool ExportSender(const QString& path, const QUuid& senderId);
    /// The sender stays who it is and takes the file's ports; locked ones stay as they are when wanted, and
    /// with `attributes` it also takes how it is named and shown. A file of another kind leaves it untouched.
    bool ImportSender(const QString& path, const QUuid& senderId, bool keepLockedPorts, bool attributes);
    bool ExportPort(const QString& path); ///< of the current sender's recent port
    bool ImportPort(const QString& path); ///< into the current sender's recent port

    // parameter files: a code of params/paramcodes.h. Parameters that do not fit are told in a message box.
    // Of them a project file holds signal frequency and colour depth alone; an import marks nothing modified.
    quint32 ExportMutiSenderParam(const QString& path, const QUuid& id);
    quint32 ExportMutiProcessorParam(const QString& path, const QUuid& id);
    quint32 ImportSenderParam(const QString& path, const QUuid& id);
    quint32 ImportProcessorParam(const QString& path, const QUuid& id); ///< kFailed, too, for another type
    quint32 ImportMutiSenderParam(const QString& path, const QUuid& id);
    quint32 ImportMutiProcessorParam(const QString& path, const QUuid& id);

    // blocks of parameter files: likewise
    static quint32 SaveBasicInfoParam(QDomDocument& document, CSender* sender, QDomElement* element);
    static quint32 LoadBasicInfoParam(QDomDocument& document, QDomElement* element, CSender* sender);
    static quint32 SaveDeviceSetParam(QDomDocument& document, QDomElement* element, CSender* sender);
    static quint32 LoadDeviceSetParam(QDomDocument& document, QDomElement* element, CSender* sender);
    static quint32 SaveMultiParam(QDomDocument& document, QDomElement* element, CSender* sender);
    static quint32 LoadMultiParam(QDomDocument& document, QDomElement& element, CSender* sender);
    static quint32 Save3DParam(QDomDocument& document, QDomElement* element, CSender* sender);
    static quint32 Load3DParam(QDomDocument& document, QDomElement& element, CSender* sender);
    static quint32 SaveInputParam(QDomDocument& document, QDomElement* element, CSender* sender);
    static quint32 LoadInputParam(QDomDocument& document, QDomElement* element, CSender* sender);
    static quint32 SaveOutputParam(QDomDocument& document, CSender* sender, QDomElement* element);
    static quint32 LoadOutputParam(QDomDocument& document, QDomElement* element, CSender* sender);
    static quint32 LoadVideoOutParam(QDomDocument& document, QDomElement* element, CSender* sender);
    static quint32 SaveOneGroupParam(QDomDocument& document, QDomElement* element, int group,
                                     CSender* sender);
    static quint32 LoadOneGroupParam(QDomDocument& document, QDomElement* element, int group,
                                     CSender* sender);
    static quint32 LoadOutputSpiltLineParam(QDomDocument& document, QDomElement* element, int group,
                                            CSender* sender);
    static quint32 LoadOutputColorBrightParam(QDomDocument& document, QDomElement* element, int group,
                                              CSender* sender);
    static quint32 LoadOutputExactColorParam(QDomDocument& document, QDomElement* element, int group,
                                             CSender* sender);
    static quint32 SaveColorCubeParam(QDomDocument& document, QDomElement* element, CSender* sender,
                                      bool perSource);
    static quint32 LoadColorCubeParam(QDomDocument& document, QDomElement& element, CSender* sender,
                                      bool perSource);
    static quint32 SaveColorCurveParam(QDomDocument& document, QDomElement* element, CSender* sender,
                                       bool perSource);
    static quint32 LoadColorCurveParam(QDomDocument& document, QDomElement& element, CSender* sender,
                                       bool perSource);
    static quint32 WriteSingleSenderParam(QDomDocument document, QDomElement* element, CSender* sender);
    static quint32 ReadSingleSenderParam(QDomDocument& document, QDomElement* element, CSender* sender);
    static quint32 WriteSingleProcessorParam(QDomDocument& document, QDomElement* element, CSender* sender);
    static quint32 ReadSingleProcessorParam(QDomDocument document, QDomElement* element, CSender* sender);

    // elements of the project file
    void WriteVersionSupport(QDomDocument document, QDomElement* parent);
    bool ReadVersionSupport(QDomDocument document, QDomElement* element, QString& error);
    void WriteDemoModeInfo(QDomDocument document, QDomElement* parent);
    void ReadDemoModeInfo(QDomDocument document, QDomElement* element);
    void WriteSenderGroup(QDomDocument document, QDomElement* parent);
    void ReadSenderGroup(QDomDocument document, QDomElement* element);
    void WriteTileGamma(QDomDocument document, QDomElement* parent);
    void ReadTileGamma(QDomDocument document, QDomElement* element);
    void WritePrintData(QDomDocument document, QDomElement* parent);
    void ReadPrintData(QDomDocument document, QDomElement* element);
    void WriteMonitorSet(QDomDocument document, QDomElement* parent);
    void ReadMonitorSet(QDomDocument document, QDomElement* element);
    void WriteParameterFileInfo(QDomDocument document, QDomElement* parent);
    void ReadParameterFileInfo(QDomDocument document, QDomElement* element);

    // elements of the layout; one that holds more than a file may changes nothing
    void WriteSender(QDomDocument document, QDomElement* parent, CCustomProgressbar* progress);
    bool ReadSender(QDomDocument document, QDomElement* element, QString& error,
                    CCustomProgressbar* progress);
    void WriteSingleSender(QDomDocument document, QDomElement* parent, CSender* sender);
    /// The sender keeps its identity, with `newId` as its id unless that is null; `attributes`: also how it
    /// is named and shown.
    void ReadSingleSender(QDomDocument document, QDomElement* element, CSender* sender, const QUuid& newId,
                          bool keepLockedPorts, bool attributes);
    void WritePort(QDomDocument document, const QString& name, CPort* port, QDomElement* parent);
    /// True when the element is there; a locked port stays untouched when `keepLocked` is set.
    bool ReadPort(QDomDocument document, const QString& name, CPort* port, QDomElement* element,
                  const QUuid& senderId, int portIndex, bool keepLocked);
    void WriteTileSet(QDomDocument document, const QString& name, CTileSet* tiles, QDomElement* parent);
    void ReadTileSet(QDomDocument document, const QString& name, CTileSet* tiles, QDomElement* element,
                     const QUuid& senderId, int portIndex);
    void WriteTileGroupSet(QDomDocument document, const QString& name, CTileGroupSet* groups,
                           QDomElement* parent);
    void ReadTileGroupSet(QDomDocument document, const QString& name, CTileSet* tiles, CTileGroupSet* groups,
                          QDomElement* element);
    /// One level of the tree below an element, whose groups are named `prefix` + "_1" and so on.
    void WriteSubTileGroup(QDomDocument document, const QString& prefix, CTileGroupSet* groups,
                           QDomElement* element);
    void ReadSubTileGroup(QDomDocument document, const QString& prefix, CTileSet* tiles,
                          CTileGroupSet* groups, QDomElement* element, const QUuid& parentId);
    static bool GetSubNode(QDomElement* element, const QString& name, QDomNode& node);
    static void InsertChildNode(QDomDocument document, QDomElement* parent, const QString& name,
                                const QString& text);
    static void InsertNodeAttribute(QDomElement* element, const QString& name, const QString& value);

private:
    CProjectUndoRedo* History() const; ///< [ref] of the open document, else null
    void MarkModified() const;
    void RestartHistory() const;
    void RemoveSenderAt(int index);
    void DestroySenders();
    void TakeSenders(const QList<CSender*>& senders); ///< [own] in place of the present ones
    int FindSourceOf(const CPort& port) const;
    bool LoadDocument(const QString& path, const QString& archive, QString& version,
                      CCustomProgressbar* progress); ///< `archive`: empty, or what holds it

    ProjectState m_state;
    QList<CSender*> m_senders;
    QString m_lastFileError;
    bool m_archiveWritten = false;
};
