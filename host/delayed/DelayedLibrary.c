// Opens the library that DELAYED_LIBRARY names for the functions of DelayedCalls.S. In C, since what
// stands in for a C library is to need nothing but the C library.
#include <dlfcn.h>
#include <pthread.h>
#include <stdatomic.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/mman.h>

extern const char delayed_names[];
extern const unsigned delayed_count;
extern _Atomic(void *) delayed_functions[];
extern char delayed_functions_end[];

static pthread_mutex_t filling = PTHREAD_MUTEX_INITIALIZER;

static _Noreturn void fail(const char *reason) {
  fprintf(stderr, "%s cannot be used: %s\nInstall it again, or this program.\n", DELAYED_LIBRARY,
          reason != NULL ? reason : "unknown reason");
  abort();
}

static void allow(int protection) {
  const size_t size = (size_t)(delayed_functions_end - (char *)delayed_functions);
  if (mprotect(delayed_functions, size, protection) != 0)
    fail("its addresses cannot be protected");
}

__attribute__((visibility("hidden"))) void *delayed_open(unsigned index);

/// The address of the function with this index. From any thread, and from the library's own
/// initialisation: whoever opens it waits for nobody here, so that the loader's lock is the only one.
void *delayed_open(unsigned index) {
  // For everybody, as a library is that the program was started with: what the library itself loads
  // looks for it there.
  void *library = dlopen(DELAYED_LIBRARY, RTLD_NOW | RTLD_GLOBAL);
  if (library == NULL)
    fail(dlerror());
  void *found[delayed_count];
  const char *name = delayed_names;
  for (unsigned i = 0; i < delayed_count; i++, name += strlen(name) + 1) {
    found[i] = dlsym(library, name);
    if (found[i] == NULL)
      fail(dlerror());
  }
  pthread_mutex_lock(&filling);
  if (atomic_load(&delayed_functions[0]) == NULL) {
    allow(PROT_READ | PROT_WRITE);
    for (unsigned i = delayed_count; i-- > 0;)
      atomic_store(&delayed_functions[i], found[i]);
    allow(PROT_READ);
  }
  pthread_mutex_unlock(&filling);
  return found[index];
}
