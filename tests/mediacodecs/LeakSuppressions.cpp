// Read by the leak sanitizer, if there is one. The encoders of these two libraries keep memory after they are
// closed. NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer's own name
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions()
{
    return "leak:libvorbisenc\n"
           "leak:libx265\n";
}
