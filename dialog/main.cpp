#include "dialog/program.h"

int main(int argc, char **argv)
{
    return dialog::runProgram(argc, argv);
}
