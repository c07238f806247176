// SPDX-License-Identifier: MIT
// Headers that nearly every file with widgets reads; each file still includes what it uses.
#pragma once

#include "CorePch.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QEvent>
#include <QObject>
#include <QPainter>
#include <QTreeView>
#include <QWidget>
