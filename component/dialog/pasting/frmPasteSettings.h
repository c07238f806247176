// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/pasting/Setting.h"

#include <QDialog>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class QTreeWidgetItem;

namespace Orvane {

namespace Ui {
class frmPasteSettings;
}

/// The small window that asks which of the copied settings are to be pasted. The host shows and closes it.
///
///     const QPointer window = new frmPasteSettings(owner); // the host may end the owner while it asks
///     window->Show("Paste these settings into 'Roads':", rows, ticked);
///     if (window->Ask())
///         Paste(window->Ticked());
///     if (window)
///         window->deleteLater();
class frmPasteSettings : public QDialog
{
    Q_OBJECT

public:
    /// A setting with its value.
    struct Row {
        Setting setting;
        QString name; ///< as the user reads it
        QString value; ///< as the user reads it
        std::optional<qint32> colour; ///< BGR; a colour's sample stands before its value
        QString whyNot; ///< why it cannot be pasted, translated; empty: it can
    };

    explicit frmPasteSettings(QWidget* owner = nullptr);
    ~frmPasteSettings() override;

    /// Shows these settings in this order, those in ticked with a tick. target: what stands above them.
    void Show(const QString& target, const std::vector<Row>& rows, const SettingSet& ticked);

    /// Waits for the user. False if the user cancelled or the window was destroyed meanwhile. Raises what the
    /// host raises.
    bool Ask();

    /// The settings with a tick.
    SettingSet Ticked() const;

    /// Escape and the close button of the window do the same as Cancel.
    void reject() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    QTreeWidgetItem* Frame(SettingGroup group);
    void Add(const Row& row, bool isTicked);
    void TickAll(bool ticked);
    void EnablePaste();
    void Close(bool confirmed);

    std::unique_ptr<Ui::frmPasteSettings> m_ui;
    bool m_confirmed = false;
};

} // namespace Orvane
