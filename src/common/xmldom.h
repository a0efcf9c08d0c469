#pragma once

#include <QDomDocument>
#include <QString>

class QByteArray;

/// Reads a small XML file into a tree under the same limits as ParseXml, checked before the tree is built. On
/// failure `document` is as it was and `error`, when given, says why.
bool LoadXmlDom(const QString& path, QDomDocument& document, QString* error);
bool ParseXmlDom(const QByteArray& content, QDomDocument& document, QString* error);
