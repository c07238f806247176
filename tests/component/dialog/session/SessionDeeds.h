// SPDX-License-Identifier: MIT
#pragma once

#include "support/Dice.h"

#include <functional>
#include <vector>

namespace Orvane::Testing {

class SessionFixture;

/// An operation that may occur in a session: performed on the real dialog and on the model.
struct Deed {
    const char* name;
    int weight; ///< how often it occurs, relative to the others
    std::function<void(SessionFixture&)> act;
};

/// The user's operations on the settings, and with Apply and Cancel.
std::vector<Deed> EditingDeeds();
/// The user's operations on the lists, the tabs and the layers.
std::vector<Deed> ListDeeds();
/// The user shows and hides layers at once, and finds nodes.
std::vector<Deed> ShowingDeeds();
/// The user's operations on the schemes.
std::vector<Deed> SchemeDeeds();
/// The host's calls to the dialog.
std::vector<Deed> HostDeeds();
/// The host ends the dialog while something waits for the user.
std::vector<Deed> EndingDeeds();
/// Changes to the database by another program meanwhile.
std::vector<Deed> StrangerDeeds();

/// Chooses one of all operations at random, the more probable the greater its weight.
class DeedChoice
{
public:
    DeedChoice();

    const Deed& Next(Dice& dice) const;

private:
    std::vector<Deed> m_deeds;
    int m_weight = 0; // of all
};

} // namespace Orvane::Testing
