#pragma once

#include <QDomDocument>
#include <QString>

class QByteArray;

/// Elements, attributes, comments and the like, texts apart; a tree takes some 600 bytes for each.
constexpr int kMaxTreeNodes = 524288;

/// Reads a small XML file into a tree under the limits of ParseXml and this one, checked before the tree is
/// built. On failure `document` is as it was and `error`, when given, says why.
bool LoadXmlDom(const QString& path, QDomDocument& document, QString* error);
bool ParseXmlDom(const QByteArray& content, QDomDocument& document, QString* error);
