#pragma once

#include <QString>

/// The kinds of files that replace one of the user's.
enum class Document
{
    Project, ///< with a receiver parameter file
    Settings,
    InterfaceSettings,
    Customization,
    AddressList,
    SenderLayout,
    SenderParameters,
    ProcessorParameters,
};
constexpr int kDocuments = 8;

/// Makes the products that the projects use, where they are missing.
void MakeProducts();

/// Saves one of two versions, 1 or 2, that differ in size and content; false when saving said that it failed.
/// The folder's name ends in "/".
bool SaveVersion(Document document, const QString& folder, int version);

/// The version that a file holds, whole; 0 when it cannot be read or is neither.
int VersionOf(Document document, const QString& folder);
