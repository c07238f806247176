// SPDX-License-Identifier: MIT
#include "shell/tools/IdentifyPanel.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QStackedWidget>
#include <QTextDocument>
#include <QTreeWidget>

namespace Orvane {

namespace {

enum Column { NameColumn, ValueColumn, ColumnCount };
enum Role { LayerRole = Qt::UserRole, FeatureRole };

// A tool tip takes a text that looks like markup for markup.
QString PlainToolTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

QTreeWidgetItem* AttributeItem(const FeatureAttribute& attribute, const QPalette& palette)
{
    auto* item = new QTreeWidgetItem({attribute.name, attribute.value});
    item->setToolTip(ValueColumn, PlainToolTip(attribute.value));
    if (attribute.isNull) {
        if (attribute.value.isEmpty())
            item->setText(ValueColumn, IdentifyPanel::tr("no value"));
        item->setForeground(ValueColumn, palette.brush(QPalette::Disabled, QPalette::Text));
    }
    return item;
}

const QTreeWidgetItem* FeatureItem(const QTreeWidgetItem* item)
{
    return item && item->parent() ? item->parent() : item;
}

} // namespace

IdentifyPanel::IdentifyPanel(QWidget* parent)
    : QDockWidget(tr("Feature Attributes"), parent), m_pages(new QStackedWidget(this)),
      m_tree(new QTreeWidget(m_pages)), m_reason(new QLabel(m_pages))
{
    setObjectName(QStringLiteral("dockIdentify"));
    m_tree->setObjectName(QStringLiteral("tvIdentified"));
    m_tree->setColumnCount(ColumnCount);
    m_tree->setHeaderLabels({tr("Attribute"), tr("Value")});
    m_tree->setAlternatingRowColors(true);
    m_tree->setAccessibleName(windowTitle());
    m_reason->setAlignment(Qt::AlignCenter);
    m_reason->setWordWrap(true);
    m_reason->setMargin(fontMetrics().height() / 2);
    m_pages->addWidget(m_reason);
    m_pages->addWidget(m_tree);
    setWidget(m_pages);
    auto* copy = new QAction(tr("&Copy Value"), m_tree);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_tree->addAction(copy);
    m_tree->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(copy, &QAction::triggered, this, &IdentifyPanel::CopyValue);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &IdentifyPanel::TellCurrent);
    connect(this, &QDockWidget::visibilityChanged, this, [this](bool seen) {
        TellCurrent(seen ? m_tree->currentItem() : nullptr);
    });
    Clear();
}

void IdentifyPanel::Show(const std::vector<IdentifiedFeature>& features, const QString& reason)
{
    m_tree->clear();
    m_reason->setText(reason);
    for (const IdentifiedFeature& feature : features)
        AddFeature(feature);
    m_pages->setCurrentWidget(features.empty() ? static_cast<QWidget*>(m_reason) : m_tree);
    if (features.empty())
        return;
    m_tree->topLevelItem(0)->setExpanded(true);
    m_tree->resizeColumnToContents(NameColumn);
    m_tree->setCurrentItem(m_tree->topLevelItem(0));
}

void IdentifyPanel::Clear()
{
    Show({}, tr("Click a feature with the Identify tool."));
}

void IdentifyPanel::AddFeature(const IdentifiedFeature& feature)
{
    const QString what = feature.isRaster ? tr("Raster") : tr("Feature %1").arg(feature.key.featureID);
    auto* top = new QTreeWidgetItem(m_tree, {feature.layerName, what});
    top->setData(NameColumn, LayerRole, feature.key.layerID);
    top->setData(NameColumn, FeatureRole, feature.key.featureID);
    top->setToolTip(NameColumn, PlainToolTip(feature.layerName));
    QFont font = top->font(NameColumn);
    font.setBold(true);
    top->setFont(NameColumn, font);
    for (const FeatureAttribute& attribute : feature.attributes)
        top->addChild(AttributeItem(attribute, palette()));
    top->setExpanded(feature.isRaster); // few values, which are what was asked for
}

void IdentifyPanel::TellCurrent(const QTreeWidgetItem* item)
{
    const QTreeWidgetItem* feature = FeatureItem(item);
    if (!feature)
        return emit NothingCurrent();
    emit CurrentChanged(
        {feature->data(NameColumn, LayerRole).toInt(), feature->data(NameColumn, FeatureRole).toLongLong()});
}

void IdentifyPanel::CopyValue()
{
    if (const QTreeWidgetItem* item = m_tree->currentItem())
        QGuiApplication::clipboard()->setText(item->text(ValueColumn));
}

} // namespace Orvane
