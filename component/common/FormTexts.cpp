// SPDX-License-Identifier: MIT
#include "component/common/FormTexts.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMetaProperty>
#include <QTabBar>
#include <QVariant>
#include <QWidget>

#include <array>

namespace Orvane {

namespace {

constexpr std::array WidgetProperties{
    "windowTitle",     "title",     "caption",        "toolTip",
    "statusTip",       "whatsThis", "accessibleName", "accessibleDescription",
    "placeholderText", "prefix",    "suffix",         "specialValueText"};

// Translates one text of one object. The object stores the English text and the last shown text under the
// key.
void TranslateText(
    QObject& object, const QByteArray& key, const QString& current, const TextTranslation& translation,
    const std::function<void(const QString&)>& show)
{
    const QByteArray englishKey = "orvaneEnglish_" + key;
    const QByteArray shownKey = "orvaneShown_" + key;
    const QVariant known = object.property(englishKey.constData());
    if (known.isValid() && object.property(shownKey.constData()).toString() != current)
        return; // set by the program
    const QString english = known.isValid() ? known.toString() : current;
    const QString shown = english.isEmpty() ? english : translation(english);
    object.setProperty(englishKey.constData(), english);
    object.setProperty(shownKey.constData(), shown);
    if (shown != current)
        show(shown);
}

void TranslateProperty(QObject& object, const char* name, const TextTranslation& translation)
{
    const QMetaObject* meta = object.metaObject();
    const QMetaProperty property = meta->property(meta->indexOfProperty(name));
    if (!property.isValid() || !property.isWritable() || property.userType() != QMetaType::QString)
        return;
    TranslateText(object, name, property.read(&object).toString(), translation, [&](const QString& text) {
        property.write(&object, text);
    });
}

void TranslateTabs(QTabBar& tabs, const TextTranslation& translation)
{
    for (int tab = 0; tab < tabs.count(); ++tab) {
        const QByteArray number = QByteArray::number(tab);
        TranslateText(tabs, "tabText" + number, tabs.tabText(tab), translation, [&](const QString& text) {
            tabs.setTabText(tab, text);
        });
        // A tab has no default tool tip, so there is none to preserve.
        TranslateText(
            tabs, "tabToolTip" + number, tabs.tabToolTip(tab), translation,
            [&](const QString& text) { tabs.setTabToolTip(tab, text); });
    }
}

void TranslateItems(QComboBox& list, const TextTranslation& translation)
{
    for (int item = 0; item < list.count(); ++item) {
        TranslateText(
            list, "item" + QByteArray::number(item), list.itemText(item), translation,
            [&](const QString& text) { list.setItemText(item, text); });
    }
}

bool HasProperty(const QObject* object, const char* name)
{
    return object && object->metaObject()->indexOfProperty(name) >= 0;
}

// The property that holds a control's caption. An editor's "text" is what the user typed. Only labels and
// buttons show their text as a caption; inside a control with its own caption they show that caption.
const char* CaptionProperty(const QWidget& widget)
{
    for (const char* own : {"caption", "Caption"}) {
        if (HasProperty(widget.parent(), own))
            return nullptr;
        if (HasProperty(&widget, own))
            return own;
    }
    const bool shown = qobject_cast<const QLabel*>(&widget) || qobject_cast<const QAbstractButton*>(&widget);
    return shown ? "text" : nullptr;
}

void TranslateWidget(QWidget& widget, const TextTranslation& translation)
{
    if (widget.property("notr").toBool())
        return;
    if (const char* caption = CaptionProperty(widget))
        TranslateProperty(widget, caption, translation);
    for (const char* property : WidgetProperties)
        TranslateProperty(widget, property, translation);
    if (auto* tabs = qobject_cast<QTabBar*>(&widget))
        TranslateTabs(*tabs, translation);
    auto* list = qobject_cast<QComboBox*>(&widget);
    if (list && list->property("staticItems").toBool())
        TranslateItems(*list, translation);
}

// An action without its own tool tip or icon text derives it from its text, and must continue to do so.
void TranslateAction(QAction& action, const TextTranslation& translation)
{
    if (action.menu())
        return; // its text is the menu's title
    QAction derived(action.text());
    const bool hasToolTip = action.toolTip() != derived.toolTip();
    const bool hasIconText = action.iconText() != derived.iconText();
    TranslateProperty(action, "text", translation);
    TranslateProperty(action, "statusTip", translation);
    TranslateProperty(action, "whatsThis", translation);
    if (hasToolTip)
        TranslateProperty(action, "toolTip", translation);
    if (hasIconText)
        TranslateProperty(action, "iconText", translation);
}

} // namespace

void TranslateFormTexts(QWidget& form, const TextTranslation& translation)
{
    TranslateWidget(form, translation);
    for (QWidget* widget : form.findChildren<QWidget*>())
        TranslateWidget(*widget, translation);
    for (QAction* action : form.findChildren<QAction*>())
        TranslateAction(*action, translation);
}

} // namespace Orvane
