#pragma once

#include <OrvanData/orvandata.h>

#include <QList>
#include <QSize>
#include <QString>

namespace OrvanTools {

/// One block of equal cabinets, cut into column strips over the ports of one sender.
struct NewProject
{
    static constexpr int kNotNumbered = -1;

    QSize cabinet{128, 128};  ///< pixels
    QSize grid{4, 3};         ///< columns and rows
    int ports = 4;            ///< strips; the first ones take the columns left over
    int order = kNotNumbered; ///< automatic numbering of each port, 0 to 7
    QSize canvas{1920, 1080}; ///< pixels
    QString name;             ///< of the sender and on the printed form
    QList<SMD5> types;        ///< product types in the library, alternating by column; none: no type
};

/// Why no such project can be built, empty when it can.
QString WhyNotBuildable(const NewProject& wanted);

/// Makes `project` that project. False, and nothing changed, when it cannot be built.
bool BuildProject(CProjectData& project, const NewProject& wanted);

/// Sets the smallest number of ports that a device has and that is at least `ports`.
void SetPortCountAtLeast(CSender& sender, int ports);

} // namespace OrvanTools
