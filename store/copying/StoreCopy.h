// SPDX-License-Identifier: MIT
#pragma once

namespace Orvane {

class ILayerStore;

/// Copies all rows of all tables into another layer store, of any kind, and makes the tables and columns that
/// are missing there. What the other store held before is removed. All of it is stored, in one transaction,
/// or nothing; it shows one moment of the source, which others may go on changing. Needs little memory,
/// however large the stores are. Tells the watcher of the source how much is done.
///
/// The columns of tables that are there already decide what a value becomes: a flag is true for each number
/// but 0. Raises DatabaseFailure, and names the values, if some do not fit into their columns, such as a text
/// in place of a number; DatabaseFailure also if the numbers of rows differ in the end; UserCancelled; and
/// the errors of both stores.
void CopyStore(ILayerStore& from, ILayerStore& to);

} // namespace Orvane
