#include "tests/fuzz/fuzz.h"

#include <QDirIterator>
#include <QFile>

// Runs a driver without a fuzzer: over each file of the folders given, over its beginnings and over copies of it with a
// false byte. What was once found stays found this way, with any compiler.

namespace {

constexpr int kMostVariants = 60; // of a file, of each kind

void run(const QByteArray &input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.constData()),
                           static_cast<std::size_t>(input.size()));
}

void runWithVariants(const QByteArray &input)
{
    run(input);
    const int step = std::max(1, input.size() / kMostVariants);
    for (int position = 0; position < input.size(); position += step) {
        run(input.left(position));
        QByteArray changed = input;
        changed[position] = static_cast<char>(changed.at(position) ^ (1 << (position % 8)));
        run(changed);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    LLVMFuzzerInitialize(&argc, &argv);
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        QDirIterator files(QFile::decodeName(argv[i]), QDir::Files);
        while (files.hasNext()) {
            QFile file(files.next());
            REQUIRE(file.open(QIODevice::ReadOnly));
            runWithVariants(file.readAll());
            ++count;
        }
    }
    REQUIRE(count > 0);
    std::printf("%d files\n", count);
    return 0;
}
