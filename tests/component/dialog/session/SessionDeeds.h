// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <vector>

namespace Orvane::Testing {

class SessionFixture;

/// Something that may happen in a session: done to the real dialog and on paper.
struct Deed {
    const char* name;
    int weight; ///< how often it happens, against the others
    std::function<void(SessionFixture&)> act;
};

/// What the person does to the settings and with Apply and Cancel.
std::vector<Deed> EditingDeeds();
/// What the person does to the lists, the tabs and the layers.
std::vector<Deed> ListDeeds();
/// What the person does to the schemes.
std::vector<Deed> SchemeDeeds();
/// What the host asks of the dialog.
std::vector<Deed> HostDeeds();
/// What somebody else does to the database meanwhile.
std::vector<Deed> StrangerDeeds();

} // namespace Orvane::Testing
