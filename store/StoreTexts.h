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

inline constexpr const char* NoServers = QT_TRANSLATE_NOOP(
    "LayerStore",
    "The map \"^1\" is on a server. This program was built without PostgreSQL and cannot reach it.");
inline constexpr const char* PlaceUnclear = QT_TRANSLATE_NOOP(
    "LayerStore",
    "\"^1\" is not the place of a map on a server, such as postgresql://server/database?schema=Map.");
inline constexpr const char* PlaceOption = QT_TRANSLATE_NOOP(
    "LayerStore",
    "The place \"^1\" contains the setting \"^2\", which may only be in a service file of PostgreSQL.");
inline constexpr const char* PlacePassword = QT_TRANSLATE_NOOP(
    "LayerStore",
    "The place \"^1\" contains a password. Leave it out: it belongs in PostgreSQL's password file, or you "
    "are asked for it.");
inline constexpr const char* MapNameTooLong
    = QT_TRANSLATE_NOOP("LayerStore", "The name \"^1\" is too long for a map on a server.");
inline constexpr const char* MapNotReadable = QT_TRANSLATE_NOOP(
    "LayerStore", "You may not read the map \"^1\". Its owner can give you the right to.");
inline constexpr const char* NotOwner
    = QT_TRANSLATE_NOOP("LayerStore", "Who may use the map \"^1\" can only be changed by its owner, ^2.");
inline constexpr const char* CannotConnect
    = QT_TRANSLATE_NOOP("LayerStore", "The server of \"^1\" cannot be reached: ^2");
inline constexpr const char* ConnectionLost = QT_TRANSLATE_NOOP(
    "LayerStore",
    "The connection to the server of \"^1\" was lost: ^2. What was not stored can be tried again.");
inline constexpr const char* ServerSilent = QT_TRANSLATE_NOOP(
    "LayerStore", "The server of \"^1\" does not answer. What was not stored can be tried again.");
inline constexpr const char* AnswerTooLong = QT_TRANSLATE_NOOP(
    "LayerStore", "The server of \"^1\" answers with more than fits into memory. The connection was ended.");
inline constexpr const char* ConnectionShared = QT_TRANSLATE_NOOP(
    "LayerStore",
    "The server of \"^1\" shares one connection between several programs. Connect without the program that "
    "does so, or let it pool sessions: ^2");
inline constexpr const char* ServerFull = QT_TRANSLATE_NOOP(
    "LayerStore", "The server of \"^1\" takes no more connections at present. Try again in a moment.");
inline constexpr const char* ServerMemory
    = QT_TRANSLATE_NOOP("LayerStore", "The server of \"^1\" has not enough memory for this.");
inline constexpr const char* ServerTooOld = QT_TRANSLATE_NOOP(
    "LayerStore", "The server of \"^1\" runs PostgreSQL ^2. Version 13 or a newer one is needed.");
inline constexpr const char* LoginRefused
    = QT_TRANSLATE_NOOP("LayerStore", "The server of \"^1\" refused the user or the password: ^2");
inline constexpr const char* NotSecure
    = QT_TRANSLATE_NOOP("LayerStore", "There is no secure connection to the server of \"^1\": ^2");
inline constexpr const char* NotAllowed
    = QT_TRANSLATE_NOOP("LayerStore", "The server does not allow this to you on \"^1\": ^2");
inline constexpr const char* ValueRefused
    = QT_TRANSLATE_NOOP("LayerStore", "A value cannot be stored in \"^1\": ^2");
inline constexpr const char* NotAStatementHere
    = QT_TRANSLATE_NOOP("LayerStore", "The statement ^2 cannot be run on \"^1\" by itself.");
inline constexpr const char* CannotRecord = QT_TRANSLATE_NOOP(
    "LayerStore",
    "Changes to \"^1\" cannot be undone because your role may not make temporary tables in its database.");
inline constexpr const char* ChangesMissed = QT_TRANSLATE_NOOP(
    "LayerStore", "It is not known what the last operation changed in \"^1\"; it cannot be undone.");
inline constexpr const char* UnsoundObject = QT_TRANSLATE_NOOP(
    "LayerStore", "The map \"^1\" is not sound: it contains \"^2\", which does not belong in a map.");
inline constexpr const char* UnsoundSilence = QT_TRANSLATE_NOOP(
    "LayerStore",
    "The map \"^1\" is not sound: the table \"^2\" lacks a trigger that tells others what has changed.");
inline constexpr const char* UnsoundReference = QT_TRANSLATE_NOOP(
    "LayerStore", "The map \"^1\" is not sound: the table \"^2\" is joined with others outside of it.");
inline constexpr const char* UnsoundRights = QT_TRANSLATE_NOOP(
    "LayerStore", "The map \"^1\" is not sound: everybody may create objects in the schema \"^2\".");
inline constexpr const char* OpenByOthers
    = QT_TRANSLATE_NOOP("LayerStore", "The map \"^1\" is open: ^2. Try again when it is closed there.");
inline constexpr const char* MoreThanMap = QT_TRANSLATE_NOOP(
    "LayerStore",
    "The map \"^1\" can be neither replaced nor removed, because more would be lost: ^2. Move "
    "that away first.");
inline constexpr const char* MapExists = QT_TRANSLATE_NOOP(
    "LayerStore", "The map \"^1\" cannot be created because the server has something of that name already.");
inline constexpr const char* NoMapOfThatName
    = QT_TRANSLATE_NOOP("LayerStore", "There is no map \"^1\" on this server.");
inline constexpr const char* NotCopyable
    = QT_TRANSLATE_NOOP("LayerStore", "The layers of \"^1\" are kept in a way that cannot be copied.");
inline constexpr const char* ValuesUnfit = QT_TRANSLATE_NOOP(
    "LayerStore",
    "\"^1\" cannot be copied because values do not fit their columns: ^2. In a map file, \"orvane check "
    "--repair\" replaces such values.");
inline constexpr const char* RowsDangling = QT_TRANSLATE_NOOP(
    "LayerStore",
    "\"^1\" cannot be copied because rows of the table \"^2\" refer to rows that are missing. In a map file, "
    "\"orvane check --repair\" removes such rows.");
inline constexpr const char* RowsMissing = QT_TRANSLATE_NOOP(
    "LayerStore", "\"^1\" was not copied because rows of the table \"^2\" are missing in the copy.");

} // namespace Orvane::StoreTexts
