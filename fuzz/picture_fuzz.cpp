#include "platform/files/picture_check.h"

// The sanitizers watch that the check reads no byte behind a file's end, whatever is in the file.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    (void)schemlet::picture::check({reinterpret_cast<const char*>(data), size});
    return 0;
}
