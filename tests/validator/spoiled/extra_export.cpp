extern "C" __attribute__((visibility("default"))) int vtlcmdExtraExport();

int vtlcmdExtraExport() { return 0; }
