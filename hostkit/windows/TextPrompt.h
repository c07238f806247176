// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/PromptRequest.h>

#include <QDialog>

#include <memory>

namespace Ui {
class TextPrompt;
}

namespace Orvane {

/// A dialog that asks for one text or one whole number. OK is enabled while the entry is acceptable: any
/// text, or a whole number within the limits, which are shown below the entry. A label above the entry says
/// what is asked for.
///
///     TextPrompt prompt(request, window);
///     PromptAnswer answer = prompt.Ask();
class TextPrompt : public QDialog
{
    Q_OBJECT

public:
    explicit TextPrompt(const PromptRequest& request, QWidget* parent = nullptr);
    ~TextPrompt() override;

    /// Replaces the label of the entry, which is "Name:", "Code:" or "Number:" otherwise. label: translated.
    void SetLabel(const QString& label);

    /// Shows the dialog modally and returns the user's answer.
    PromptAnswer Ask();

    /// Places the dialog with its entry over a control, within the control's screen.
    void PlaceOver(const QWidget& control);

private:
    QString UsualLabel() const;
    bool IsAcceptable(const QString& text) const;
    void ShowAcceptability();
    void ShowLimits();
    void SetEntryWidth(int averageCharacters);

    PromptRequest m_request;
    std::unique_ptr<Ui::TextPrompt> m_ui;
};

} // namespace Orvane
