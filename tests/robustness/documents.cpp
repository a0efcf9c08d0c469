#include "robustness/documents.h"

#include "frame/lednimbradata.h"
#include "frame/runtimedata.h"
#include "products/productdirectoryset.h"
#include "project/projectdata.h"
#include "settings/archive.h"
#include "settings/configdata.h"
#include "settings/constantdata.h"
#include "support/testfolder.h"
#include "support/wallbuilder.h"

#include <QFile>
#include <QProcess>

namespace {

constexpr int kColumns[] = {0, 12, 30}; ///< of the wall of each version
constexpr int kAddresses[] = {0, 5, 400};

QString NameOf(int version)
{
    return "version %1"_s.arg(version);
}

/// The versions use different products, by the same name.
SMD5 ProductOf(int version)
{
    const QString file = "product%1.rcvbp"_s.arg(version);
    const CProduct* product = GetRuntimeData()->GetProductDirectorySet()->FindProductFromFileName(file);
    return product ? product->GetMd5() : SMD5();
}

CSender* Build(CProjectData& project, int version)
{
    project.SetToDefault();
    CSender* sender = project.NewSender();
    sender->SetSenderName(NameOf(version));
    sender->SetColorDepth(version);
    sender->SetNetSenderIP(0xC0A80101u);
    MakeWall(*sender->GetPort(0), kColumns[version], 20);
    GetRuntimeData()->GetImpExpPrepareInfo()->senders = {0};
    return sender;
}

bool SaveProject(CProjectData& project, const QString& path, int version)
{
    project.AddParameterFileInfo("cabinet"_s, ProductOf(version));
    return project.SaveProjectToFile(path, nullptr) && project.GetLastFileError().isEmpty();
}

/// Loads a project and looks at the parameter file in its archive, which nobody else replaces, and at the
/// archive with a reader that trusts the headers in front of the entries, as the library does not.
bool LoadProject(CProjectData& project, const QString& path)
{
    QString refused;
    if (QProcess::execute("unzip"_s, {"-tqq"_s, path}) != 0
        || !project.LoadProjectFromFile(QFile::encodeName(path).constData(), refused, nullptr)
        || !project.GetLastFileError().isEmpty() || project.GetParameterFiles().size() != 1)
        return false;
    TestFolder folder;
    return UnpackArchive(path, folder.Path())
           && CConstantData::GetMD5FromFile(folder.Path("project/0.rcvbp"_s))
                  == project.GetParameterFiles().first().type;
}

int LayoutVersion(const CSender* sender)
{
    for (int version : {1, 2})
        if (sender && sender->GetPort(0)->GetTileSet().GetCount() == kColumns[version] * 20
            && sender->GetSenderName() == NameOf(version))
            return version;
    return 0;
}

int AddressVersion(int count)
{
    return count == kAddresses[1] ? 1 : count == kAddresses[2] ? 2 : 0;
}

QString PathOf(Document document, const QString& folder)
{
    static const char* const kNames[kDocuments] = {"a.prj",   "config.xml", "windows.ini", "custom.json",
                                                   "ips.txt", "layout.xml", "sender.xml",  "processor.xml"};
    return folder + QLatin1String(kNames[int(document)]);
}

} // namespace

void MakeProducts()
{
    const QString path = CProductDirectorySet::GetRootDir() + "product%1.rcvbp"_s;
    for (int version : {1, 2}) {
        QFile file(path.arg(version));
        if (!file.exists() && file.open(QIODevice::WriteOnly))
            file.write(QByteArray(20000, char('0' + version)));
    }
    GetRuntimeData()->GetProductDirectorySet()->LoadProductInfo();
}

bool SaveVersion(Document document, const QString& folder, int version)
{
    const QString path = PathOf(document, folder);
    CConfigData config;
    CProjectData& project = *GetProjectData();
    const QUuid id = Build(project, version)->GetId();
    switch (document) {
    case Document::Project:
        return SaveProject(project, path, version);
    case Document::Settings:
        config.SetCustomerTileSize(QSize(version, version));
        return config.XmlSave(path);
    case Document::InterfaceSettings:
        config.Load_UI(path);
        config.SetEnableRotate(version == 2);
        return config.Save_UI();
    case Document::Customization:
        config.LoadCustomizeConfig(path);
        config.SetCustomizeValue("version"_s, version);
        return config.SaveCustomizeConfig();
    case Document::AddressList:
        config.LoadSpecifiedIP(path);
        config.ClearSpecifiedIP();
        for (int i = 0; i < kAddresses[version]; ++i)
            config.AddSpecifiedIP("10.%1.%2.%3"_s.arg(version).arg(i / 250).arg(i % 250));
        return config.SaveSpecifiedIP();
    case Document::SenderLayout:
        return project.ExportSender(path, id);
    case Document::SenderParameters:
        return project.ExportMutiSenderParam(path, QUuid()) == 0;
    case Document::ProcessorParameters:
        return project.ExportMutiProcessorParam(path, QUuid()) == 0;
    }
    return false;
}

int VersionOf(Document document, const QString& folder)
{
    const QString path = PathOf(document, folder);
    CConfigData config;
    CProjectData& project = *GetProjectData();
    CSender* sender = Build(project, 1);
    sender->SetSenderName(QString());
    sender->SetColorDepth(0);
    switch (document) {
    case Document::Project:
        return LoadProject(project, path) ? LayoutVersion(project.GetSender(0)) : 0;
    case Document::Settings:
        return config.XmlLoad(path) ? config.GetCustomerTileSize().width() : 0;
    case Document::InterfaceSettings:
        return config.Load_UI(path) ? 1 + int(config.IsEnableRotate()) : 0;
    case Document::Customization:
        return config.LoadCustomizeConfig(path) ? config.GetCustomizeValue("version"_s).toInt() : 0;
    case Document::AddressList:
        return config.LoadSpecifiedIP(path) ? AddressVersion(config.GetSpecifiedIPList().size()) : 0;
    case Document::SenderLayout:
        return project.ImportSender(path, sender->GetId(), false, true) ? LayoutVersion(sender) : 0;
    case Document::SenderParameters:
        return project.ImportMutiSenderParam(path, QUuid()) == 0 ? sender->GetColorDepth() : 0;
    case Document::ProcessorParameters:
        return project.ImportMutiProcessorParam(path, QUuid()) == 0 ? sender->GetColorDepth() : 0;
    }
    return 0;
}
