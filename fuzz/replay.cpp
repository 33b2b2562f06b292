// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// fuzz_<target>.replay [--mutations N] <file or folder>…
//
// Runs a fuzz target without libFuzzer: over every file, in the order of their names, and over N
// changes of each, the same in every run. Prints how many inputs were run; an input that fails is
// left in the file "failed-input" of the working folder.

#include <fuzz/fuzzing.h>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QStringList>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <vector>

extern "C" __attribute__((weak)) std::size_t
LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t room, unsigned int seed);

namespace {

constexpr std::size_t largestInput = 1 << 16;

QRandomGenerator &bytesAtRandom()
{
    static QRandomGenerator random(1);
    return random;
}

QStringList filesBelow(const QString &path)
{
    if (!QFileInfo(path).isDir())
        return {path};
    QStringList files;
    QDirIterator found(path, QDir::Files, QDirIterator::Subdirectories);
    while (found.hasNext())
        files.append(found.next());
    std::sort(files.begin(), files.end());
    return files;
}

const QByteArray *runningInput = nullptr;

/** Keeps the input that brought the program down. */
void keepInput()
{
    if (!runningInput)
        return;
    if (std::FILE *const file = std::fopen("failed-input", "wb")) {
        std::fwrite(runningInput->constData(), 1, std::size_t(runningInput->size()), file);
        std::fclose(file);
        std::fputs("The input is in the file failed-input\n", stderr);
    }
}

void keepInputOnAbort(int signal)
{
    keepInput();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void runInput(const QByteArray &input)
{
    runningInput = &input;
    // Exactly as many bytes as there are, so that a sanitizer sees a read past them.
    const std::vector<std::uint8_t> bytes(input.cbegin(), input.cend());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    runningInput = nullptr;
}

QByteArray mutated(const QByteArray &input, unsigned int seed)
{
    std::vector<std::uint8_t> bytes(input.cbegin(), input.cend());
    const std::size_t size = std::min(bytes.size(), largestInput);
    bytes.resize(largestInput);
    const std::size_t newSize =
        LLVMFuzzerCustomMutator ? LLVMFuzzerCustomMutator(bytes.data(), size, largestInput, seed)
                                : LLVMFuzzerMutate(bytes.data(), size, largestInput);
    return QByteArray(reinterpret_cast<const char *>(bytes.data()), int(newSize));
}

} // namespace

std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t room)
{
    QRandomGenerator &random = bytesAtRandom();
    if (size == 0) {
        data[0] = std::uint8_t(random.bounded(256));
        return 1;
    }
    const auto at = std::size_t(random.bounded(quint32(size)));
    switch (random.bounded(4)) {
    case 0:
        data[at] = std::uint8_t(random.bounded(256));
        return size;
    case 1:
        data[at] = std::uint8_t(data[at] ^ (1U << random.bounded(8)));
        return size;
    case 2: // cut
        return at;
    default: { // double a part
        const std::size_t length = std::min({size - at, room - size, std::size_t(64)});
        std::memmove(data + at + length, data + at, size - at);
        return size + length;
    }
    }
}

int main(int argc, char **argv)
{
    unsigned int mutations = 0;
    QStringList files;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--mutations") == 0 && i + 1 < argc)
            mutations = QByteArray(argv[++i]).toUInt();
        else
            files.append(filesBelow(QString::fromLocal8Bit(argv[i])));
    }
    std::signal(SIGABRT, keepInputOnAbort);
    unsigned int count = 0;
    for (const QString &file : qAsConst(files)) {
        QByteArray input = Fuzzing::contentOf(file);
        runInput(input);
        ++count;
        // Each change starts from the one before, and every eighth from the file again.
        for (unsigned int seed = 1; seed <= mutations; ++seed, ++count) {
            input = mutated(seed % 8 == 1 ? Fuzzing::contentOf(file) : input, seed);
            runInput(input);
        }
    }
    std::printf("%u inputs of %d files\n", count, int(files.size()));
    return files.isEmpty() ? 1 : 0;
}
