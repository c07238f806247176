// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/KnownSystems.h"

#include <QDialog>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class QModelIndex;

namespace Ui {
class SystemChooser;
}

namespace Orvane {

class SystemListModel;

/// The list of the known coordinate systems, read at its first use.
class SystemCatalogue
{
public:
    const std::vector<KnownSystem>& Systems();

private:
    std::optional<std::vector<KnownSystem>> m_systems;
};

/// What the user is asked to choose a coordinate system for.
struct SystemQuestion {
    struct Layer {
        QString name;
        QString system;
    };

    QString title; ///< of the window
    QString text; ///< what is to be chosen, as sentences; may be empty
    QString system; ///< that is chosen at first; empty for none
    std::vector<Layer> layers; ///< whose systems are offered
};

/// Asks for a coordinate system: one of a searchable list, that of a layer, or any text that GDAL
/// understands.
///
///     const QString system = SystemChooser::Ask(catalogue, {tr("Coordinate System of the Map")}, &window);
///
/// While the user searches, the first system that was found is chosen; the arrow keys then go through the
/// list, and Enter or a double click takes a system.
class SystemChooser : public QDialog
{
    Q_OBJECT
public:
    /// catalogue: outlives the dialog.
    SystemChooser(SystemCatalogue& catalogue, const SystemQuestion& question, QWidget* parent);
    ~SystemChooser() override;

    /// The text of the system, as in CoordinateSystems.h; the dialog can only be accepted with a known one.
    QString System() const;

    /// Shows the dialog, and remembers what was chosen for the next time. Empty if the user cancels.
    static QString Ask(SystemCatalogue& catalogue, const SystemQuestion& question, QWidget* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Fill(const SystemQuestion& question);
    void Connect();
    void Search(const QString& text);
    void TakeRow(const QModelIndex& index);
    void ShowFacts();

    std::unique_ptr<Ui::SystemChooser> m_ui;
    SystemListModel* m_model; // owned by this dialog
};

} // namespace Orvane
