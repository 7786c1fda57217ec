#include "disctool/tool/Tool.h"

int main(int argc, char** argv) { return orvanta::RunTool(argc, argv); }
