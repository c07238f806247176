// SPDX-License-Identifier: MIT
#pragma once

#include "shell/output/PageChoices.h"

#include <QDialog>

#include <memory>

namespace Ui {
class PageDialog;
}

namespace Orvane {

/// Asks how a map is to be placed on a page. Accepted choices are offered again the next time; the title is
/// that of the map unless the user enters another.
class PageDialog : public QDialog
{
    Q_OBJECT
public:
    enum class Purpose {
        Export, ///< with size and resolution
        Print, ///< without them: the printer has its own paper
    };

    /// scaleDenominator: n of 1:n that the window shows, offered as the scale to keep.
    PageDialog(Purpose purpose, const QString& mapName, double scaleDenominator, QWidget* parent);
    ~PageDialog() override;

    /// What the dialog shows now.
    PageChoices Choices() const;
    PageSettings Settings() const;

    void accept() override;

private:
    void Show(const PageChoices& choices);
    void FillPapers();
    void Connect();
    void PaperChanged();
    void UnitChanged();
    void ShowSize();
    void ShowSummary();
    bool IsOwnSize() const;

    std::unique_ptr<Ui::PageDialog> m_ui;
    QSizeF m_ownSize; // kept while a paper is chosen
    bool m_ownInPixels = true;
};

} // namespace Orvane
