/* Both libraries from C. Succeeds when the sum is right. */
#include <rnxcore.h>
#include <rnxip.h>
#include <string.h>

int main(void) {
  RnxiSize size = {3, 1};
  int32_t cache = 0;
  Rnx8u* image = rnxMalloc(64);
  if (!image || rnxGetMaxCacheSizeB(&cache) > 0) return 1;
  memcpy(image, "\1\2\377", 3);
  if (rnxiAddC_8u_C1IRSfs(7, image, 64, size, 0) != rnxStatusNoError) return 2;
  if (memcmp(image, "\10\11\377", 3) != 0) return 3;
  rnxFree(image);
  return rnxiGetLibVersion()->major == 2021 ? 0 : 4;
}
