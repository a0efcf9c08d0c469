#pragma once

#include <QDomDocument>
#include <QString>

class QByteArray;

/// Elements, attributes, comments and the like, without texts. Each takes some 600 bytes in a tree.
constexpr int kMaxTreeNodes = 524288;

/// Reads a small XML file into a tree. The limits of ParseXml and this one are checked before the tree is
/// built. On failure `document` stays as it was and `error` says why.
bool LoadXmlDom(const QString& path, QDomDocument& document, QString* error);
bool ParseXmlDom(const QByteArray& content, QDomDocument& document, QString* error);
