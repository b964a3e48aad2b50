#include "runtime/foundation/VXJson.h"

#include <cstdio>

int main(int argc, char** argv)
{
    std::string error;
    const auto document = argc > 1 ? Vexlor::ReadJsonFile(argv[1], &error) : nullptr;
    std::printf("%s\n", error.c_str());
    return document ? 0 : 1;
}
