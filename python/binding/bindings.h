// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

// Everything that the module is generated from.

#include <fishbone/editor/fisheditor.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/undo/undostack.h>
#include <python/binding/scriptdocument.h>
#include <python/binding/scriptpicture.h>
#include <python/binding/scriptselection.h>
#include <python/binding/scriptsubject.h>
