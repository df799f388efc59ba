/// Plays the kept inputs of a fuzz target, all files in the folders that the command line names. A finding ends the
/// process before the totals line.
#include "Fuzz.h"

#include <QDirIterator>
#include <QFile>
#include <cstdio>
#include <span>

int main(int argc, char *argv[])
{
    int played = 0;
    for (const char *folder : std::span(argv, static_cast<std::size_t>(argc)).subspan(1)) {
        QDirIterator entries(QFile::decodeName(folder), QDir::Files);
        while (entries.hasNext()) {
            QFile file(entries.next());
            if (!file.open(QIODevice::ReadOnly))
                return 1;
            std::fprintf(stderr, "%s\n", qPrintable(file.fileName()));
            const QByteArray input = file.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.data()), std::size_t(input.size()));
            ++played;
        }
    }
    std::printf("Totals: %d passed, 0 failed\n", played);
    return 0;
}
