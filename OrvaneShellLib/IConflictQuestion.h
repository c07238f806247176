// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

class QWidget;

namespace Orvane {

/// A property that the user edited in an editor, and that was changed elsewhere since the editor read it. All
/// texts are in the user's language.
struct ConflictingEdit {
    QString property; ///< "Line colour"
    QString mine; ///< the user's value
    QString stored; ///< the value that is stored now; of a group, in the first layer with another value
    int layers = 1; ///< how many layers of a group hold another value
};

/// What becomes of values that were changed elsewhere.
enum class ConflictChoice {
    Overwrite, ///< the user's values are stored
    KeepStored, ///< the stored values stay; the user's other edits are stored
    Cancel, ///< nothing is stored; the edits stay in the editor
};

/// A question that a host may answer besides IStyleEditorClient: its application object implements both, and
/// the component finds it by a dynamic cast. Without it, the user's values are stored.
class IConflictQuestion
{
public:
    /// The minor version of the contract that added it; never asked of a host that was built with an earlier
    /// one.
    static constexpr int ContractMinor = 2;

    virtual ~IConflictQuestion() = default;
    IConflictQuestion(const IConflictQuestion&) = delete;
    IConflictQuestion& operator=(const IConflictQuestion&) = delete;

    /// Asks what to do; called once for each apply that finds such values, before anything is stored. The
    /// host may end the editor while it asks. form: the editor's form; not owned. node: what was edited, as
    /// the editor names it: the name of the layer or group, or how many layers, such as "12 layers", in the
    /// user's language. edits: at least one.
    ConflictChoice
    AskAboutConflicts(QWidget* form, const QString& node, const std::vector<ConflictingEdit>& edits)
    {
        return IConflictQuestion_AskAboutConflicts(form, node, edits);
    }

protected:
    IConflictQuestion() = default;

private:
    virtual ConflictChoice IConflictQuestion_AskAboutConflicts(
        QWidget* form, const QString& node, const std::vector<ConflictingEdit>& edits)
        = 0;
};

} // namespace Orvane
