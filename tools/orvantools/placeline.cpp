#include "orvantools/placeline.h"

#include "orvantools/printable.h"

namespace OrvanTools {

QString PlaceLine(int sender, int port, int cabinet, const QString& text)
{
    QString line;
    const auto place = [&line](const char* name, int number) {
        if (number > 0)
            line += (line.isEmpty() ? QString() : QStringLiteral(" ")) + QLatin1String(name)
                    + QString::number(number);
    };
    place("sender ", sender);
    place("port ", port);
    place("cabinet ", cabinet);
    return Printable(line.isEmpty() ? text : line + QStringLiteral(": ") + text);
}

QJsonObject PlaceJson(const QString& kind, int sender, int port, int cabinet, const QString& text)
{
    return {{QStringLiteral("kind"), kind},
            {QStringLiteral("sender"), sender},
            {QStringLiteral("port"), port},
            {QStringLiteral("cabinet"), cabinet},
            {QStringLiteral("text"), text}};
}

} // namespace OrvanTools
