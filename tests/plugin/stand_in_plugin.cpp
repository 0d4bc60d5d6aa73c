// A plug-in library that answers what the build tells it to.
#ifndef ENTRY
#define ENTRY NP_GetValue
#endif
#ifndef RESULT
#define RESULT 0
#endif

extern "C" __attribute__((visibility("default"))) short ENTRY(void* instance,
                                                              int variable,
                                                              void* value) {
  constexpr int kDescription = 2;
  if (instance || variable != kDescription) return -1;
  *static_cast<const char**>(value) = DESCRIPTION;
  return RESULT;
}
