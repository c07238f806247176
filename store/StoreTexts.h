// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// The descriptions of the errors that the store raises, in English. ^1 stands for the file's name, ^2 for a
/// detail. Translated in the context "LayerStore" when an error is raised.
namespace Orvane::StoreTexts {

inline constexpr const char* MissingFile = QT_TRANSLATE_NOOP("LayerStore", "The map \"^1\" does not exist.");
inline constexpr const char* FileExists
    = QT_TRANSLATE_NOOP("LayerStore", "\"^1\" cannot be created because a file of that name exists already.");
inline constexpr const char* CannotCreate
    = QT_TRANSLATE_NOOP("LayerStore", "The map \"^1\" cannot be created: ^2");
inline constexpr const char* CannotStore = QT_TRANSLATE_NOOP("LayerStore", "\"^1\" cannot be stored: ^2");
inline constexpr const char* InUse = QT_TRANSLATE_NOOP(
    "LayerStore",
    "\"^1\" is open in another window or program and cannot be replaced. Close it there, or choose another "
    "name.");
inline constexpr const char* CannotOpen
    = QT_TRANSLATE_NOOP("LayerStore", "The map \"^1\" cannot be opened: ^2");
inline constexpr const char* NotALayerDatabase = QT_TRANSLATE_NOOP("LayerStore", "\"^1\" is not a map file.");
inline constexpr const char* Damaged
    = QT_TRANSLATE_NOOP("LayerStore", "The map \"^1\" is damaged. Use an earlier copy of it.");
inline constexpr const char* NotARegularFile = QT_TRANSLATE_NOOP(
    "LayerStore", "The map \"^1\" cannot be opened because \"^2\" is not an ordinary file.");
inline constexpr const char* TooLong
    = QT_TRANSLATE_NOOP("LayerStore", "The map \"^1\" was not opened because checking it takes too long.");
inline constexpr const char* UnsoundView
    = QT_TRANSLATE_NOOP("LayerStore", "The map \"^1\" is not sound: \"^2\" is a view.");
inline constexpr const char* UnsoundTable
    = QT_TRANSLATE_NOOP("LayerStore", "The map \"^1\" is not sound: \"^2\" is not an ordinary table.");
inline constexpr const char* UnsoundTrigger
    = QT_TRANSLATE_NOOP("LayerStore", "The map \"^1\" is not sound: it contains the trigger \"^2\".");
inline constexpr const char* UnsoundColumn
    = QT_TRANSLATE_NOOP("LayerStore", "The map \"^1\" is not sound: the column \"^2\" is computed.");
inline constexpr const char* UnsoundIndex
    = QT_TRANSLATE_NOOP("LayerStore", "The map \"^1\" is not sound: the index \"^2\" is computed.");
inline constexpr const char* UnsoundCondition
    = QT_TRANSLATE_NOOP("LayerStore", "The map \"^1\" is not sound: the table \"^2\" has a condition.");
inline constexpr const char* TooNew
    = QT_TRANSLATE_NOOP("LayerStore", "The map \"^1\" was written by a newer version of this program.");
inline constexpr const char* ReadOnly
    = QT_TRANSLATE_NOOP("LayerStore", "The map \"^1\" is read-only and cannot be changed.");
inline constexpr const char* Locked
    = QT_TRANSLATE_NOOP("LayerStore", "The map \"^1\" is in use by another program. Try again in a moment.");
inline constexpr const char* DiskFull
    = QT_TRANSLATE_NOOP("LayerStore", "There is not enough disk space for the map \"^1\".");
inline constexpr const char* Refused
    = QT_TRANSLATE_NOOP("LayerStore", "The layer database \"^1\" refused an operation: ^2");
inline constexpr const char* UnknownTable
    = QT_TRANSLATE_NOOP("LayerStore", "The layer database \"^1\" has no table \"^2\" to open.");
inline constexpr const char* UnknownColumn
    = QT_TRANSLATE_NOOP("LayerStore", "The rows read from \"^1\" have no column \"^2\".");
inline constexpr const char* UnknownIndex
    = QT_TRANSLATE_NOOP("LayerStore", "The rows read from \"^1\" cannot be sought by the index \"^2\".");
inline constexpr const char* SeekNotEqual
    = QT_TRANSLATE_NOOP("LayerStore", "Rows of \"^1\" can be sought with \"=\" only, not with \"^2\".");
inline constexpr const char* NoIndexChosen
    = QT_TRANSLATE_NOOP("LayerStore", "A row of \"^1\" was sought before an index was chosen.");
inline constexpr const char* NotATableCursor
    = QT_TRANSLATE_NOOP("LayerStore", "The rows of a query on \"^1\" cannot be sought or edited.");
inline constexpr const char* NotAQuery
    = QT_TRANSLATE_NOOP("LayerStore", "Only a query can be opened for reading on \"^1\".");
inline constexpr const char* NotOneStatement
    = QT_TRANSLATE_NOOP("LayerStore", "One statement at a time can be run on \"^1\".");
inline constexpr const char* WrongParameterCount = QT_TRANSLATE_NOOP(
    "LayerStore", "A statement on \"^1\" was given another number of values than it takes.");
inline constexpr const char* NoCurrentRow
    = QT_TRANSLATE_NOOP("LayerStore", "There is no current row to read or edit in \"^1\".");
inline constexpr const char* NotEditing
    = QT_TRANSLATE_NOOP("LayerStore", "A row of \"^1\" was changed without beginning an edit.");
inline constexpr const char* RowGone
    = QT_TRANSLATE_NOOP("LayerStore", "The row to change is no longer in \"^1\".");
inline constexpr const char* CursorClosed
    = QT_TRANSLATE_NOOP("LayerStore", "Rows of \"^1\" were used after they were closed.");
inline constexpr const char* NoTransaction
    = QT_TRANSLATE_NOOP("LayerStore", "There is no transaction to commit in \"^1\".");
inline constexpr const char* TransactionLost
    = QT_TRANSLATE_NOOP("LayerStore", "The changes to \"^1\" were undone after an error; begin them again.");
inline constexpr const char* StillOpen = QT_TRANSLATE_NOOP(
    "LayerStore",
    "An earlier change to the map \"^1\" failed and cannot be undone at present: ^2. Try again, or open the "
    "map again.");
inline constexpr const char* NothingToStore
    = QT_TRANSLATE_NOOP("LayerStore", "An empty value cannot be stored in \"^1\".");
inline constexpr const char* Cancelled
    = QT_TRANSLATE_NOOP("LayerStore", "The operation on \"^1\" was cancelled.");
inline constexpr const char* Working = QT_TRANSLATE_NOOP(
    "LayerStore", "A longer operation on \"^1\" is not finished yet. Wait until it is, or cancel it.");
inline constexpr const char* ChangesNotKept
    = QT_TRANSLATE_NOOP("LayerStore", "The changes cannot be kept for undoing in the folder \"^1\": ^2.");
inline constexpr const char* ChangesNotRecorded = QT_TRANSLATE_NOOP(
    "LayerStore", "There was not enough memory to record the changes to \"^1\"; they cannot be undone.");

} // namespace Orvane::StoreTexts
