#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

/// What one run of the command gave.
struct OrvanRun
{
    int status = -1; ///< -1: it did not end by itself
    QByteArray output;
    QString errors;

    QJsonObject Json() const; ///< of the output
};

/// Runs the built command in a folder, by default the current one, with `environment` ("NAME=value") on top
/// of this one's.
OrvanRun RunOrvan(const QStringList& arguments, const QString& folder = QString(),
                  const QStringList& environment = {});

/// Every file and folder below a folder, with the content of the files.
QMap<QString, QByteArray> Snapshot(const QString& folder);
