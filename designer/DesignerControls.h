// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <memory>
#include <vector>

namespace Orvane {

class ControlInDesigner;

/// The plug-in that Qt Designer and QUiLoader load: CheckBoxPlus, OvCombo and OvSpin.
class DesignerControls : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit DesignerControls(QObject* parent = nullptr);
    ~DesignerControls() override;

    /// The plug-in owns them.
    QList<QDesignerCustomWidgetInterface*> customWidgets() const override;

private:
    std::vector<std::unique_ptr<ControlInDesigner>> m_controls;
};

} // namespace Orvane
