// Opens the library that DELAYED_LIBRARY names for the functions of DelayedCalls.S. In C, since
// what stands in for a C library is to need nothing but the C library.
#include <dlfcn.h>
#include <pthread.h>
#include <stdatomic.h>
#include <stdbool.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/mman.h>

extern const char delayed_names[];
extern const unsigned delayed_count;
extern _Atomic(void *) delayed_functions[];
extern char delayed_functions_end[];

static pthread_mutex_t keeping = PTHREAD_MUTEX_INITIALIZER;

static _Noreturn void fail(const char *reason) {
  fprintf(stderr, "%s cannot be used: %s\nInstall it, or build this program again.\n",
          DELAYED_LIBRARY, reason != NULL ? reason : "unknown reason");
  abort();
}

static void allow(int protection) {
  const size_t size = (size_t)(delayed_functions_end - (char *)delayed_functions);
  if (mprotect(delayed_functions, size, protection) != 0)
    fail("its addresses cannot be protected");
}

/// Nothing may write there but what follows.
__attribute__((constructor)) static void protect(void) { allow(PROT_READ); }

/// For all further calls.
static void keep(void *const *found) {
  static bool isKept = false;
  pthread_mutex_lock(&keeping);
  if (!isKept) {
    allow(PROT_READ | PROT_WRITE);
    for (unsigned i = 0; i < delayed_count; i++)
      atomic_store(&delayed_functions[i], found[i]);
    allow(PROT_READ);
    isKept = true;
  }
  pthread_mutex_unlock(&keeping);
}

__attribute__((visibility("hidden"))) void *delayed_open(unsigned index);

/// The address of the function with this index. From any thread, and from the library's own
/// initialisation: whoever opens it waits for nobody here, so that the loader's lock is the only
/// one.
void *delayed_open(unsigned index) {
  // For everybody, as a library is that the program was started with: what the library itself loads
  // looks for it there.
  void *library = dlopen(DELAYED_LIBRARY, RTLD_NOW | RTLD_GLOBAL);
  if (library == NULL)
    fail(dlerror());
  void *found[delayed_count];
  const char *name = delayed_names;
  const char *called = NULL;
  for (unsigned i = 0; i < delayed_count; i++, name += strlen(name) + 1) {
    found[i] = dlsym(library, name); // another maker's library may have fewer
    if (i == index)
      called = name;
  }
  if (found[index] == NULL)
    fail(called);
  keep(found);
  return found[index];
}
