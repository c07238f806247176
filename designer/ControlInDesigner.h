// SPDX-License-Identifier: MIT
#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <functional>

namespace Orvane {

/// One control, as Designer lists, makes and saves it.
class ControlInDesigner : public QDesignerCustomWidgetInterface
{
public:
    struct Description {
        QString className; ///< without namespace; also the name of its header
        QString baseName; ///< of the class that generated code may take it for
        QString toolTip; ///< in the list of controls
        QString firstProperties; ///< of a control that is dropped on a form: "property" elements
        std::function<QWidget*(QWidget* parent)> make;
    };

    explicit ControlInDesigner(const Description& description) : m_description(description) { }

    QString name() const override;
    QString group() const override { return QStringLiteral("Orvane"); }
    QString toolTip() const override { return m_description.toolTip; }
    QString whatsThis() const override { return m_description.toolTip; }
    QString includeFile() const override;
    QIcon icon() const override { return {}; }
    bool isContainer() const override { return false; }
    QWidget* createWidget(QWidget* parent) override { return m_description.make(parent); }
    QString domXml() const override;
    bool isInitialized() const override { return m_isInitialised; }
    void initialize(QDesignerFormEditorInterface*) override { m_isInitialised = true; }

private:
    Description m_description;
    bool m_isInitialised = false;
};

} // namespace Orvane
