#pragma once

#include "common/smd5.h"
#include "project/projectrecords.h"

#include <QList>
#include <QString>

class CProductDirectorySet;
class ReadReport;

/// The receiver parameter files in the project work folder: name + ".rcvbp" while a project is open, numbered
/// in its "project/" folder when it is packed or unpacked. Nothing is followed or overwritten through a link.
namespace parameterwork {

QString ProjectFolder();             ///< what an archive is made of, with a closing "/"
QString DocumentPath();              ///< "project/new.prj"
QString LockPath();                  ///< of the lock held while the folder is packed or unpacked
QString PathOf(const QString& name); ///< of the open project's file of that name

/// The product library's file of a type, empty when it has none.
QString LibraryFile(const CProductDirectorySet* products, const SMD5& type);

/// Puts a copy of `source` under the name, unless a file of that type is there already.
bool Store(const QString& source, const QString& name, const SMD5& type);

/// Makes the project folder, in the place of a file or link of that name if there is one, and removes the
/// document and the numbered files that an earlier packing or unpacking left there.
bool MakeProjectFolder();

/// Whether an archive's entry of that name is the document or a parameter file. Others would come into every
/// project that is packed afterwards.
bool IsPacked(const QString& entry);

/// Whether the path leads to one of the files that MakeProjectFolder removes.
bool IsInTheWay(const QString& path);

/// Lays the files of the rows down by their numbers. A file that is nowhere to be found is reported; false,
/// with the reason, when one that is there cannot be copied.
bool CollectForSaving(const QList<SParameterFileInfo>& rows, const CProductDirectorySet* products,
                      ReadReport& report);

/// Gives the unpacked numbered files their names here and in the product library, and lets that look again.
void DistributeAfterLoading(const QList<SParameterFileInfo>& rows, CProductDirectorySet* products,
                            ReadReport& report);

} // namespace parameterwork
