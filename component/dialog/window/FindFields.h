// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/window/FindField.h"

#include <QObject>

class QWidget;

namespace Orvane {

/// The find fields of both lists. Ctrl+F goes to that of the list that is shown, from every control of the
/// form; within a host's window it is the host's again as soon as the focus is outside the form.
class FindFields : public QObject
{
    Q_OBJECT

public:
    /// None is owned; all outlive this object.
    FindFields(
        QWidget& form, LayerTrees& trees, const FindField::Widgets& groups, const FindField::Widgets& layers);

    /// Shows the numbers found again, in the current language.
    void Retranslate();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    FindField* Shown();

    FindField m_groups;
    FindField m_layers;
};

} // namespace Orvane
