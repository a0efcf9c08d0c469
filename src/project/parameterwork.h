#pragma once

#include "common/smd5.h"
#include "project/projectrecords.h"

#include <QList>
#include <QString>

#include <functional>

class CProductDirectorySet;
class QIODevice;
class ReadReport;
class UniqueNames;

/// The receiver parameter files in the project work folder: name + ".rcvbp" while a project is open, numbered
/// in its "project/" folder when it is packed or unpacked. Nothing is followed or overwritten through a link.
namespace parameterwork {

QString ProjectFolder();             ///< what an archive is made of, with a closing "/"
QString DocumentPath();              ///< "project/new.prj"
QString LockPath();                  ///< of the lock held while the folder is packed or unpacked
QString PathOf(const QString& name); ///< of the open project's file of that name

/// The name made one that is safe in a file system and unlike the others.
QString SafeName(const QString& name, UniqueNames& names);

/// The rows of a file's list by their numbers there, safely named; nameless where a type was repeated.
QList<SParameterFileInfo> SafelyNamed(const QList<SParameterFileInfo>& files);
QList<SParameterFileInfo> WithoutNameless(QList<SParameterFileInfo> rows);

/// The product library's file of a type, empty when it has none.
QString LibraryFile(const CProductDirectorySet* products, const SMD5& type);

/// Puts a copy of `source` under the name, unless a file of that type is there already.
bool Store(const QString& source, const QString& name, const SMD5& type, QString* error = nullptr);

/// Makes the project folder, in the place of a file or link of that name if there is one, and removes the
/// document and the numbered files that an earlier packing or unpacking left there, and what killed ones
/// left.
bool MakeProjectFolder(QString* error);

/// The same with a new document in the folder. When `write` fails, nothing there has changed.
bool ReplaceDocument(const std::function<bool(QIODevice&)>& write, QString* error);

/// Whether the path leads to one of the files that saving and loading remove.
bool IsInTheWay(const QString& path);

/// Lays the files of the rows down by their numbers. One that is nowhere to be found, cannot be read or is
/// too large for an archive is left out and reported; refused, and false, when the folder takes no copy.
bool CollectForSaving(const QList<SParameterFileInfo>& rows, const CProductDirectorySet* products,
                      ReadReport& report);

bool Pack(const QString& archive, QString* error); ///< what lies in the project folder

/// Unpacks the document alone. Other entries than it and the parameter files are passed over: they would come
/// into every project that is packed afterwards.
bool UnpackDocument(const QString& archive, QString* error);

/// Unpacks the parameter files, gives them their names here and in the product library, and lets that look
/// again. What cannot be had or be put there is reported.
void DistributeAfterLoading(const QString& archive, const QList<SParameterFileInfo>& rows,
                            CProductDirectorySet* products, ReadReport& report);

} // namespace parameterwork
