#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "record/record_store.h"

namespace veldix {

/// How a command ended, as the exit status of the program.
enum class Salida { Hecha = 0, Fallida = 1, MalUso = 2 };

/// Where a command writes: results and messages, and the language of the latter, which Ejecuta sets.
struct Consola {
    std::ostream& resultados;
    std::ostream& mensajes;
    bool espanol = false;
};

/// Runs a command of the program, arguments without its name. `rutaPrograma` is its folder, beside which the
/// settings folder with the language files is looked for; none of its files is written.
Salida Ejecuta(const std::vector<std::string>& argumentos, const std::string& rutaPrograma, Consola consola);

/// The words of one command behind its name, options taken out.
struct Argumentos {
    std::vector<std::string> sueltos;
    std::string referencia;  ///< "primary", "secondary" or empty
};

/// Opens a record. False after its message.
bool AbreRegistroDe(const std::string& dat, const Consola& consola);

/// JSON of the record and, where one is named, of its template.
Salida OrdenInfo(const Argumentos& a, const Consola& consola);
/// CSV of the samples.
Salida OrdenSamples(const Argumentos& a, const Consola& consola);

}  // namespace veldix
