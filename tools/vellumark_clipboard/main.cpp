#include "vellumark_clipboard/keeper.h"
#include "vellumark_clipboard/reader.h"

#include <cstdio>
#include <string_view>

namespace {

constexpr int wrong_usage = 2;

constexpr char help_text[] = "Usage: vellumark-clipboard --keep | --read\n"
                             "\n"
                             "  --keep      keep standard input, a UTF-8 text, on the clipboard, in the background,\n"
                             "              until another program copies\n"
                             "  --read      write the clipboard's text to standard output as UTF-8\n"
                             "  -h, --help  show this help\n"
                             "  --version   show the version\n";

int answer(const char* text)
{
    return std::fputs(text, stdout) >= 0 && std::fflush(stdout) == 0 ? 0 : 1;
}

}

int main(int argc, char* argv[])
{
    const std::string_view choice = argc == 2 ? argv[1] : "";
    if (choice == "--keep")
        return keep_text(argc, argv);
    if (choice == "--read")
        return read_text(argc, argv);
    if (choice == "--help" || choice == "-h")
        return answer(help_text);
    if (choice == "--version")
        return answer("vellumark-clipboard " VELLUMARK_VERSION "\n");
    std::fputs(help_text, stderr);
    return wrong_usage;
}
