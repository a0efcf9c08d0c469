#pragma once

#include "params/paramresult.h"

#include <QVector>

#include <array>

class CSender;

/// Parameter files: the processor parameters of one or several senders.
namespace params {

class ElementReader;
class ElementWriter;

/// What tells the two families of parameter files apart.
struct Family
{
    const char* root;
    const char* encoding;                      ///< as the declaration names it
    std::array<const char*, 2> zeroAttributes; ///< of the root, null: none

    /// One sender of a file. Reading compares the type before anything is applied: kTypeDiffers when the
    /// sender's is another, kImportFailed without one. A part that is absent leaves the sender as it is.
    void (*write)(ElementWriter& writer, const CSender& sender);
    quint32 (*read)(ElementReader& reader, CSender& sender);
    Outcome (*readAlone)(ElementReader& reader, CSender& sender); ///< a file that holds one sender
};

extern const Family kSenderFamily;
extern const Family kProcessorFamily;

/// One sender that an export or import is about.
struct Target
{
    int index = -1;            ///< in the project
    CSender* sender = nullptr; ///< [ref] null: there is none at that index
};

Outcome NoSender();

/// Targets without a sender are left out; the others keep their numbers.
Outcome Export(const Family& family, const QVector<Target>& targets, bool matchByIp, const QString& path);

/// A file of several senders, by the address of each target or by its position. It ends at the first target
/// that fails, which the user is told once. One that is not marked as such is read into `single`.
Outcome Import(const Family& family, const QVector<Target>& targets, CSender* single, bool matchByIp,
               const QString& path);

/// A file of one sender, whose values stand in the root or in "Processor_1".
Outcome ImportSingle(const Family& family, CSender* sender, const QString& path);

/// An address in a file: four decimal octets with dots, or one unsigned decimal number; 0 for anything else.
quint32 GetIntFromOctString(const QString& text);

} // namespace params
