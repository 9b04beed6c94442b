#include <iostream>

#include "batch/ordenes.h"
#include "platform/ficheros.h"
#include "platform/forms/ImpresoraPdf.h"

int main(int argc, char** argv)
{
    std::ios::sync_with_stdio(false);
    const std::vector<std::string> argumentos(argv + 1, argv + argc);
    veldix::creaPdf = veldix::CreaImpresoraPdf;
    const veldix::Consola consola{std::cout, std::cerr};
    return static_cast<int>(veldix::Ejecuta(argumentos, veldix::CarpetaPrograma(argv[0]), consola));
}
