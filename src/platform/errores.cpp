#include "platform/errores.h"

#include <new>
#include <stdexcept>

namespace veldix {

namespace {

struct Descripcion {
    int numero;
    const char* texto;
};

constexpr Descripcion kDescripciones[] = {
    {5, "Invalid procedure call or argument"},
    {6, "Overflow"},
    {7, "Out of memory"},
    {9, "Subscript out of range"},
    {11, "Division by zero"},
    {13, "Type mismatch"},
    {52, "Bad file name or number"},
    {53, "File not found"},
    {55, "File already open"},
    {57, "Device I/O error"},
    {58, "File already exists"},
    {61, "Disk full"},
    {62, "Input past end of file"},
    {68, "Device unavailable"},
    {70, "Permission denied"},
    {71, "Disk not ready"},
    {75, "Path/File access error"},
    {76, "Path not found"},
    {3021, "No current record"},
    {3024, "Database file not found"},
    {3044, "Not a valid path"},
    {3265, "Item not found in this collection"},
    {3343, "Unrecognized database format"},
};

}  // namespace

const char* DescripcionError(int numero)
{
    for (const Descripcion& d : kDescripciones)
        if (d.numero == numero) return d.texto;
    return "Application-defined error";
}

ErrorEjecucion ErrorEnVuelo()
{
    try {
        throw;
    } catch (const ErrorEjecucion& e) {
        return e;
    } catch (const std::bad_alloc&) {
        return ErrorEjecucion(error::kSinMemoria);
    } catch (const std::length_error&) {
        return ErrorEjecucion(error::kSinMemoria);
    } catch (...) {
        return ErrorEjecucion(error::kArgumento);
    }
}

void Lanza(int numero)
{
    throw ErrorEjecucion(numero);
}

std::string TextoError(const ErrorEjecucion& e)
{
    return "Error " + std::to_string(e.numero) + ": " + e.descripcion;
}

}  // namespace veldix
