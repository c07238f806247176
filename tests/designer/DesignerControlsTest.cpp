// SPDX-License-Identifier: MIT
#include <QMetaProperty>
#include <QPluginLoader>
#include <QWidget>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace Orvane {

namespace {

class DesignerControlsTest : public testing::Test
{
protected:
    QList<QDesignerCustomWidgetInterface*> Controls()
    {
        auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(m_loader.instance());
        EXPECT_NE(collection, nullptr) << qPrintable(m_loader.errorString());
        return collection ? collection->customWidgets() : QList<QDesignerCustomWidgetInterface*>();
    }

    QPluginLoader m_loader{QStringLiteral(ORVANE_DESIGNER_PLUGIN)};
};

} // namespace

TEST_F(DesignerControlsTest, AreTheControlsThatHostsUse)
{
    QStringList names;
    for (const auto* control : Controls())
        names << control->name();
    EXPECT_THAT(names, testing::ElementsAre("Orvane::CheckBoxPlus", "Orvane::OvCombo", "Orvane::OvSpin"));
}

TEST_F(DesignerControlsTest, AreMadeWithTheirClass)
{
    QWidget form;
    for (auto* control : Controls()) {
        const QWidget* widget = control->createWidget(&form);
        EXPECT_EQ(widget->metaObject()->className(), control->name());
        EXPECT_EQ(widget->parentWidget(), &form);
        EXPECT_FALSE(control->isContainer());
    }
}

TEST_F(DesignerControlsTest, HaveOnlyPropertiesThatDesignerCanEdit)
{
    const std::vector<int> editable{
        QMetaType::Bool, QMetaType::Int, QMetaType::Double, QMetaType::QString, QMetaType::QFont};
    for (auto* control : Controls()) {
        const std::unique_ptr<QWidget> widget(control->createWidget(nullptr));
        const QMetaObject& meta = *widget->metaObject();
        for (int number = meta.propertyOffset(); number < meta.propertyCount(); ++number) {
            const QMetaProperty property = meta.property(number);
            EXPECT_THAT(editable, testing::Contains(property.userType())) << property.name();
        }
    }
}

TEST_F(DesignerControlsTest, NameTheirInstalledHeaders)
{
    for (const auto* control : Controls()) {
        const QString className = control->name().section("::", 1);
        EXPECT_EQ(control->includeFile(), QString("<orvane/ovctrls/%1.h>").arg(className));
        EXPECT_TRUE(control->domXml().contains(QString("class=\"%1\"").arg(control->name())));
    }
}

} // namespace Orvane
