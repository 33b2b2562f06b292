// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

/**
 * What the fuzz targets share. A target is a program with LLVMFuzzerTestOneInput(), which is run
 * either by libFuzzer or by replay.cpp.
 */
namespace Fuzzing {

/** Makes the offscreen application, once, and silences what Qt says about bad input. */
void startApplication();

/** Ends the program with @p what on its standard error unless @p holds. */
void require(bool holds, const char *what);

/** As above, and says what was expected and what came. */
void requireEqual(const QByteArray &actual, const QByteArray &expected, const char *what);

/** The whole content of a file; empty when there is none. */
QByteArray contentOf(const QString &path);

/** Replaces the content of a file that the target itself owns. */
void writeFile(const QString &path, const QByteArray &content);

/**
 * Changes the JSON text of @p size bytes at @p data, which has room for @p room bytes, so that it
 * stays JSON: one value is replaced, doubled, wrapped, removed or given a new key. Bytes that are
 * no JSON are changed as libFuzzer changes them. Returns the new size; the same for the same
 * @p seed.
 */
std::size_t mutateJson(std::uint8_t *data, std::size_t size, std::size_t room, unsigned int seed);

} // namespace Fuzzing

extern "C" {
/** What every target defines: runs one input; 0. */
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
/** What a target defines whose input has a structure: changes an input, returns its new size. */
std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t room,
                                    unsigned int seed);
/** What libFuzzer, or replay.cpp, defines: changes bytes without knowing what they are. */
std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t room);
}
