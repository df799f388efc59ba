#include "Autopilot.h"
#include "DemoMachine.h"
#include "wt_main.h"

#include <QThread>
#include <cstdio>
#include <memory>
#include <string_view>

namespace
{

constexpr int fastest = 100;

struct Arguments {
    QString pictures; ///< Empty: no autopilot.
    const Story *story = &stories().front();
    int speed = 1;
    bool list = false;
    bool help = false;
    bool valid = true;
};

Arguments parse(int argc, char **argv)
{
    Arguments arguments;
    for (int index = 1; index < argc; ++index) {
        const std::string_view argument = argv[index];
        const bool hasValue = index + 1 < argc;
        if (argument == "--autopilot" && hasValue) {
            arguments.pictures = QString::fromLocal8Bit(argv[++index]);
        } else if (argument == "--story" && hasValue) {
            arguments.story = findStory(QString::fromLocal8Bit(argv[++index]));
            arguments.valid = arguments.valid && arguments.story;
        } else if (argument == "--speed" && hasValue) {
            arguments.speed = QByteArray(argv[++index]).toInt();
            arguments.valid = arguments.valid && arguments.speed >= 1 && arguments.speed <= fastest;
        } else if (argument == "--list-stories") {
            arguments.list = true;
        } else if (argument == "--help") {
            arguments.help = true;
        } else {
            arguments.valid = false;
        }
    }
    return arguments;
}

void printUsage(std::FILE *where)
{
    std::fputs(
        "usage: wifitool-demo [--story NAME] [--speed TIMES] [--autopilot DIR]\n"
        "       wifitool-demo --list-stories | --help\n"
        "The wizard with an emulated printer, whose waits may be some times shorter. With --autopilot it walks the\n"
        "story by itself and saves a picture of every screen in DIR; the exit status is 0 only if the story ended as\n"
        "told.\n",
        where);
}

void printStories()
{
    for (const Story &story : stories())
        std::printf("%-16s %s\n", qPrintable(story.name), qPrintable(story.summary));
}

/// Whether the printer got the network and the password of the story, in sound frames only.
bool wasToldWell(const PrinterRecord &record, const Story &story)
{
    if (record.networkName == story.networkName && record.password == story.password && record.allSound())
        return true;
    std::fprintf(stderr, "%s: the printer was told something else\n", qPrintable(story.name));
    return false;
}

int runByHand(int argc, char **argv, DemoMachine &demo)
{
    return wt_main(argc, argv, demo.machine());
}

int runByItself(int argc, char **argv, DemoMachine &demo, const Arguments &arguments)
{
    const Story &story = *arguments.story;
    const QDir pictures(arguments.pictures);
    if (!pictures.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "%s cannot be made\n", qPrintable(arguments.pictures));
        return 1;
    }
    std::unique_ptr<Autopilot> autopilot;
    const int status = wt_main(argc, argv, demo.machine(), [&](WTWindow &window) {
        autopilot = std::make_unique<Autopilot>(story, window, pictures, arguments.speed);
        autopilot->start();
    });
    const bool good = status == 0 && autopilot->arrived() && wasToldWell(demo.printerRecord(), story);
    return good ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    const Arguments arguments = parse(argc, argv);
    if (!arguments.valid || arguments.help) {
        printUsage(arguments.valid ? stdout : stderr);
        return arguments.valid ? 0 : 2;
    }
    if (arguments.list) {
        printStories();
        return 0;
    }
    // The toolkit takes the first thread that it meets for the main one, and the machine begins some work on others.
    QThread::currentThread();
    // Never destroyed: a printer command may be under way until the process ends.
    static auto *demo =
        new DemoMachine(arguments.story->printer, arguments.story->host, arguments.story->model, arguments.speed);
    if (arguments.pictures.isEmpty())
        return runByHand(argc, argv, *demo);
    return runByItself(argc, argv, *demo, arguments);
}
