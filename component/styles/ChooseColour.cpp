// SPDX-License-Identifier: MIT
#include "component/styles/ChooseColour.h"

#include "component/common/Messages.h"
#include "samples/BgrColour.h"

#include <QColorDialog>
#include <QPointer>

namespace Orvane {

std::optional<qint32> ChooseColour(QWidget* owner, qint32 start)
{
    // On the heap: the owner may be destroyed while the dialog waits, and the dialog with it.
    const QPointer<QColorDialog> dialog(new QColorDialog(QColorFromBgr(start), owner));
    dialog->setWindowTitle(TranslateMsg("Extended Colours"));
    const bool accepted = dialog->exec() == QDialog::Accepted && dialog;
    const std::optional<qint32> chosen
        = accepted ? std::optional(BgrFromQColor(dialog->selectedColor())) : std::nullopt;
    delete dialog;
    return chosen;
}

} // namespace Orvane
