// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QAbstractButton;
class QComboBox;
class QWidget;

namespace Orvane {

/// The panel picScheme: switches, creates, saves, reverts and deletes the host's layer schemes, and asks
/// before anything is overwritten. The host determines the current scheme; the list only shows it.
class SchemePanel : public QObject
{
    Q_OBJECT

public:
    struct Widgets {
        QComboBox* cmbScheme;
        QAbstractButton* cmdNew;
        QAbstractButton* cmdSave;
        QAbstractButton* cmdRevert;
        QAbstractButton* cmdDelete;
        QAbstractButton* cmdSaveStartup;
        QAbstractButton* cmdManage; ///< shown only if the host has such a window
    };

    /// widgets: not owned; outlive this object.
    explicit SchemePanel(const Widgets& widgets, QObject* parent = nullptr);

    /// Lists the host's schemes and shows the current one. All members raise what the host raises.
    void Fill();

    /// Makes the scheme current after a question; shows the current one again if the user refuses or it
    /// fails.
    void SwitchTo(const QString& name);
    /// Asks for a name, until it is not blank or the user cancels, and creates a scheme.
    void New();
    void Save();
    void Revert();
    void Delete();
    void SaveToStartup();
    /// Shows the host's window for all schemes, and reads everything again afterwards.
    void Manage();

signals:
    /// The host has loaded a scheme, or its window for all schemes was shown: every layer may have changed.
    void SchemeLoaded();

private:
    void Wire(QAbstractButton* button, void (SchemePanel::*action)());
    QString CurrentScheme();
    void ShowCurrent();
    void ShowInList(const QString& name);
    void EnableButtons();
    void LoadAndShow(const QString& name);
    void ChangeSchemes(const std::function<void()>& change);
    void Load(const QString& name);
    bool Confirm(const QString& question) const;
    QString Neighbour(const QString& name) const;
    QWidget* Owner() const;

    Widgets m_widgets;
    QString m_shown; ///< the current scheme as the host named it last
};

} // namespace Orvane
