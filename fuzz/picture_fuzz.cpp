#include "platform/files/picture_check.h"

// Whatever is in a file, the check must not read beyond its end. The sanitizers watch that.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    (void)schemlet::picture::check({reinterpret_cast<const char*>(data), size});
    return 0;
}
