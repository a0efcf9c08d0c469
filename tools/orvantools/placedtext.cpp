#include "orvantools/placedtext.h"

#include "orvantools/printable.h"

namespace OrvanTools {

QString PlacedText::Line() const
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

QJsonObject PlacedText::JsonOfKind(const QString& kind) const
{
    return {{QStringLiteral("kind"), kind},
            {QStringLiteral("sender"), sender},
            {QStringLiteral("port"), port},
            {QStringLiteral("cabinet"), cabinet},
            {QStringLiteral("text"), text}};
}

} // namespace OrvanTools
