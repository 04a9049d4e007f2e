/* hello: adds 100 to every pixel of a small gray image; what passes 255 stays there. */
#include <rnxip.h>
#include <stdio.h>

int main(void) {
  RnxiSize size = {6, 2};
  int step; /* bytes from one row to the next */
  Rnx8u* image = rnxiMalloc_8u_C1(size.width, size.height, &step);
  if (!image) return 1;
  for (int y = 0; y < size.height; ++y)
    for (int x = 0; x < size.width; ++x) image[y * step + x] = (Rnx8u)(40 * x + 10 * y);

  RnxStatus status = rnxiAddC_8u_C1IRSfs(100, image, step, size, 0);

  for (int y = 0; y < size.height; ++y)
    for (int x = 0; x < size.width; ++x) printf("%4d%s", image[y * step + x], x + 1 < size.width ? "" : "\n");
  rnxiFree(image);
  return status == rnxStatusNoError ? 0 : 1;
}
