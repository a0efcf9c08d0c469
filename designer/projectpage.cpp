#include "projectpage.h"

#include "documentcontroller.h"
#include "senderedits.h"

ProjectPage::ProjectPage(DocumentController& document, SenderEdits& edits, QWidget* parent)
    : PageForm(document, edits, parent)
{
    const std::pair<QString, SPrintLine SPrintFormData::*> lines[] = {
        {tr("Pro&ject:"), &SPrintFormData::projectName},
        {tr("&Designer:"), &SPrintFormData::designer},
        {tr("D&ate of design:"), &SPrintFormData::designDate},
        {tr("Appr&over:"), &SPrintFormData::approver},
        {tr("Date of approva&l:"), &SPrintFormData::approveDate},
    };
    for (const auto& [label, line] : lines)
        AddLine(
            label, tr("A line of the printed form, printed when ticked"),
            [this, line = line] { return m_document.GetProject().GetPrintSetData()->*line; },
            [this, line = line](const SPrintLine& value) { m_edits.SetPrintLine(line, value); });
}
