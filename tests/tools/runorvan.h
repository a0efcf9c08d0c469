#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QMap>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <initializer_list>

QString Arg(const char* text); ///< UTF-8
QStringList Args(std::initializer_list<const char*> texts);

/// What one run of the command gave.
struct OrvanRun
{
    int status = -1; ///< -1: it did not end by itself
    QByteArray output;
    QString errors;

    QJsonObject Json() const; ///< of the output
};

QProcessEnvironment EnvironmentWith(const QStringList& entries); ///< this one, with "NAME=value" on top

/// Runs the built command in a folder, by default the current one, with `environment` ("NAME=value") on top
/// of this one; or another program.
OrvanRun RunOrvan(const QStringList& arguments, const QString& folder = QString(),
                  const QStringList& environment = {}, const QString& program = QString());

QJsonObject ReadJson(const QString& path);

/// Every file and folder below a folder, with the content of the files.
QMap<QString, QByteArray> Snapshot(const QString& folder);
