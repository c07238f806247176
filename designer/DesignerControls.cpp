// SPDX-License-Identifier: MIT
#include "designer/DesignerControls.h"

#include "designer/ControlInDesigner.h"
#include "ovctrls/CheckBoxPlus.h"
#include "ovctrls/OvCombo.h"
#include "ovctrls/OvSpin.h"

namespace Orvane {

namespace {

template <typename Control> QWidget* Make(QWidget* parent)
{
    return new Control(parent);
}

std::vector<ControlInDesigner::Description> Descriptions()
{
    return {
        {"CheckBoxPlus", "QWidget", "A check box of two or three states",
         "<property name=\"Caption\"><string>CheckBoxPlus</string></property>", Make<CheckBoxPlus>},
        {"OvCombo", "QComboBox", "A combo box of colours, lines and texts", {}, Make<OvCombo>},
        {"OvSpin", "QWidget", "Two small buttons that step a value", {}, Make<OvSpin>}};
}

} // namespace

DesignerControls::DesignerControls(QObject* parent) : QObject(parent)
{
    const auto descriptions = Descriptions();
    m_controls.reserve(descriptions.size());
    for (const auto& description : descriptions)
        m_controls.push_back(std::make_unique<ControlInDesigner>(description));
}

DesignerControls::~DesignerControls() = default;

QList<QDesignerCustomWidgetInterface*> DesignerControls::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface*> widgets;
    for (const auto& control : m_controls)
        widgets.append(control.get());
    return widgets;
}

} // namespace Orvane
