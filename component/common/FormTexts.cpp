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
#include <QVector>
#include <QWidget>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <vector>

namespace Orvane {

namespace {

/// One text of an object, in English and as it was shown last.
struct KeptText {
    QByteArray key; ///< the name of a property, for example
    QString english;
    QString shown;
};

/// What an object keeps of its texts until the next translation.
struct KeptTexts {
    QVector<KeptText> texts;
};

} // namespace

} // namespace Orvane

Q_DECLARE_METATYPE(Orvane::KeptTexts)

namespace Orvane {

namespace {

// One for all texts of an object, because setting a dynamic property takes long.
constexpr const char* keptProperty = "orvaneTexts";

constexpr std::array WidgetProperties{
    "windowTitle",     "title",     "caption",        "toolTip",
    "statusTip",       "whatsThis", "accessibleName", "accessibleDescription",
    "placeholderText", "prefix",    "suffix",         "specialValueText"};

/// Translates the texts of one object, which keeps them.
class ObjectTexts
{
public:
    ObjectTexts(QObject& object, const TextTranslation& translation)
        : m_object(object), m_translation(translation),
          m_kept(object.property(keptProperty).value<KeptTexts>())
    {
        m_kept.texts.reserve(int(WidgetProperties.size()) + 1);
    }

    /// The text to show instead of the current one; nothing if that stays.
    std::optional<QString> Next(const QByteArray& key, const QString& current)
    {
        KeptText& kept = Kept(key, current);
        if (kept.shown != current)
            return std::nullopt; // set by the program
        QString shown = kept.english.isEmpty() ? kept.english : m_translation(kept.english);
        if (shown == current)
            return std::nullopt;
        kept.shown = shown;
        m_isChanged = true;
        return shown;
    }

    /// show: called by Finish.
    void ShowLater(std::function<void()> show) { m_shows.push_back(std::move(show)); }

    void Translate(const QMetaProperty& property)
    {
        const auto name = QByteArray::fromRawData(property.name(), int(qstrlen(property.name())));
        if (const auto text = Next(name, property.read(&m_object).toString()))
            ShowLater([object = &m_object, property, text = *text] { property.write(object, text); });
    }

    /// Has the object keep its texts, and then shows them: if that fails, none is shown that is not known.
    void Finish()
    {
        if (m_isChanged)
            m_object.setProperty(keptProperty, QVariant::fromValue(m_kept));
        for (const auto& show : m_shows)
            show();
    }

private:
    KeptText& Kept(const QByteArray& key, const QString& current)
    {
        QVector<KeptText>& texts = m_kept.texts;
        const auto kept
            = std::find_if(texts.begin(), texts.end(), [&](const KeptText& text) { return text.key == key; });
        if (kept != texts.end())
            return *kept;
        m_isChanged = true;
        texts.append({key, current, current});
        return texts.back();
    }

    QObject& m_object;
    const TextTranslation& m_translation;
    KeptTexts m_kept;
    std::vector<std::function<void()>> m_shows;
    bool m_isChanged = false;
};

void TranslateTabs(QTabBar& tabs, ObjectTexts& texts)
{
    for (int tab = 0; tab < tabs.count(); ++tab) {
        const QByteArray number = QByteArray::number(tab);
        if (const auto text = texts.Next("tabText" + number, tabs.tabText(tab)))
            texts.ShowLater([&tabs, tab, text = *text] { tabs.setTabText(tab, text); });
        // A tab has no default tool tip, so there is none to preserve.
        if (const auto tip = texts.Next("tabToolTip" + number, tabs.tabToolTip(tab)))
            texts.ShowLater([&tabs, tab, tip = *tip] { tabs.setTabToolTip(tab, tip); });
    }
}

void TranslateItems(QComboBox& list, ObjectTexts& texts)
{
    for (int item = 0; item < list.count(); ++item) {
        if (const auto text = texts.Next("item" + QByteArray::number(item), list.itemText(item)))
            texts.ShowLater([&list, item, text = *text] { list.setItemText(item, text); });
    }
}

bool HasProperty(const QMetaObject& meta, const char* name)
{
    return meta.indexOfProperty(name) >= 0;
}

// Not valid if the class has no such text that can be set.
QMetaProperty TextProperty(const QMetaObject& meta, const char* name)
{
    const QMetaProperty property = meta.property(meta.indexOfProperty(name));
    const bool isText
        = property.isValid() && property.isWritable() && property.userType() == QMetaType::QString;
    return isText ? property : QMetaProperty();
}

/// The properties of one class of widgets that hold texts.
struct ClassTexts {
    std::vector<QMetaProperty> properties;
    QMetaProperty shown; ///< the text that a label or a button shows; not valid for others
    bool hasCaption = false; ///< a caption of its own, which the labels and buttons inside show
};

// An editor's "text" is what the user typed. Only labels and buttons show their text as a caption.
ClassTexts TextsOfClass(const QMetaObject& meta)
{
    ClassTexts texts;
    texts.properties.reserve(WidgetProperties.size());
    for (const char* name : WidgetProperties) {
        if (const QMetaProperty property = TextProperty(meta, name); property.isValid())
            texts.properties.push_back(property);
    }
    const bool isShown
        = meta.inherits(&QLabel::staticMetaObject) || meta.inherits(&QAbstractButton::staticMetaObject);
    texts.hasCaption = HasProperty(meta, "caption") || HasProperty(meta, "Caption");
    if (texts.hasCaption)
        texts.shown = TextProperty(meta, "Caption");
    else if (isShown)
        texts.shown = TextProperty(meta, "text");
    return texts;
}

/// Translates the texts of widgets and actions.
class FormTranslator
{
public:
    explicit FormTranslator(const TextTranslation& translation) : m_translation(translation) { }

    void Translate(QWidget& widget)
    {
        if (widget.property("notr").toBool())
            return;
        ObjectTexts texts(widget, m_translation);
        const ClassTexts& ofClass = ClassOf(widget);
        const bool isPart = widget.parentWidget() && ClassOf(*widget.parentWidget()).hasCaption;
        if (ofClass.shown.isValid() && !isPart)
            texts.Translate(ofClass.shown);
        for (const QMetaProperty& property : ofClass.properties)
            texts.Translate(property);
        if (auto* tabs = qobject_cast<QTabBar*>(&widget))
            TranslateTabs(*tabs, texts);
        auto* list = qobject_cast<QComboBox*>(&widget);
        if (list && list->property("staticItems").toBool())
            TranslateItems(*list, texts);
        texts.Finish();
    }

    // An action without its own tool tip or icon text derives it from its text, and must continue to do so.
    void Translate(QAction& action)
    {
        if (action.menu())
            return; // its text is the menu's title
        const QAction derived(action.text());
        ObjectTexts texts(action, m_translation);
        for (const char* name : {"text", "statusTip", "whatsThis"})
            texts.Translate(TextProperty(*action.metaObject(), name));
        if (action.toolTip() != derived.toolTip())
            texts.Translate(TextProperty(*action.metaObject(), "toolTip"));
        if (action.iconText() != derived.iconText())
            texts.Translate(TextProperty(*action.metaObject(), "iconText"));
        texts.Finish();
    }

private:
    const ClassTexts& ClassOf(const QWidget& widget)
    {
        const QMetaObject* meta = widget.metaObject();
        const auto known = m_classes.find(meta);
        return known != m_classes.end() ? known->second
                                        : m_classes.emplace(meta, TextsOfClass(*meta)).first->second;
    }

    const TextTranslation& m_translation;
    std::map<const QMetaObject*, ClassTexts> m_classes;
};

} // namespace

void TranslateFormTexts(QWidget& form, const TextTranslation& translation)
{
    FormTranslator translator(translation);
    translator.Translate(form);
    for (QWidget* widget : form.findChildren<QWidget*>())
        translator.Translate(*widget);
    for (QAction* action : form.findChildren<QAction*>())
        translator.Translate(*action);
}

} // namespace Orvane
