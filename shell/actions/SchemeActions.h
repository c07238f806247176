// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>

class QAction;
class QActionGroup;
class QMenu;
class QStatusBar;
class QWidget;

namespace Orvane {

class LayerControl;
class MapSession;
class SchemeStatus;
struct SchemeImport;

/// The menu of layer schemes: lists them to switch to, saves the current one and reverts to it, exports one
/// to a file and imports one. Asks before anything is lost, and shows in the status bar what a scheme left
/// unchanged and when the schemes were saved for new maps.
class SchemeActions : public QObject
{
    Q_OBJECT
public:
    /// Fills the menu, and adds the field of the current scheme to the status bar. None is owned; all outlive
    /// this object.
    SchemeActions(QMenu& menu, QStatusBar& statusBar, LayerControl& control, QWidget& window);

    /// The commands work on the schemes of this map from now on; not owned.
    void Use(MapSession& session);
    /// Loads the scheme that the user has chosen for the opening of this map, and says so in the status bar.
    /// Call it when the user has opened the map, before it is read.
    void ApplyAtOpening();

private:
    void MakeCommands();
    QAction* MakeCommand(const char* objectName, const QString& text, void (SchemeActions::*command)());
    void Fill();
    void FillList(const QStringList& names, const QString& current);
    void SwitchTo(const QString& name);
    void LoadAfterQuestions(const QString& name);
    void Load(const QString& name);
    bool MayLeaveCurrent(const QString& next);
    void Save();
    void Revert();
    void Export();
    void Import();
    bool MayReplace(const QString& name);
    void Report(const SchemeImport& import);
    void ChangeLayers(const std::function<void()>& change);
    QString LayersLeftAlone(const QString& scheme);
    void TellLayersLeftAlone(const QString& scheme);
    void TellApplied(const QString& scheme);
    QString Current() const;

    QMenu& m_menu;
    QStatusBar& m_statusBar;
    LayerControl& m_control;
    QWidget& m_window;
    SchemeStatus* m_status; // owned by the status bar
    QActionGroup* m_schemes;
    QAction* m_listEnd = nullptr; // owned by the menu, like the commands
    QAction* m_save = nullptr;
    QAction* m_revert = nullptr;
    MapSession* m_session = nullptr;
};

} // namespace Orvane
