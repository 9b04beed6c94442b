#pragma once

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "platform/impresora.h"
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
    std::string referencia;    ///< "primary", "secondary" or empty
    int grupo = 0;             ///< three-phase group, from 1, of a command that takes one
    std::vector<int> canales;  ///< rows of channels, in their order; empty for all
    int muestra = 0;           ///< sample, from 1; 0 where none is asked for
    bool monocromo = false;
};

/// Makes a printer that writes a PDF file, for the reports; the program's start fills it.
extern std::function<std::unique_ptr<Impresora>(const std::string& ruta, ModoColor color)> creaPdf;

/// Opens a record. False after its message.
bool AbreRegistroDe(const std::string& dat, const Consola& consola);

/// Reads a template and applies it if it fits, which PlantillaNoValida tells. False after a message.
bool LeePlantillaDe(const std::string& ruta, const Consola& consola);

/// Whether the template that was read fits the record; false after a message.
bool CabePlantilla(const Consola& consola);

/// The samples a cycle, with the message where there is less than one. 0 then.
std::int16_t CicloDe(const Consola& consola);

/// Applies the side that was asked for to a record that has samples; tells where it needs one.
void AplicaReferenciaDe(const Argumentos& a, const Consola& consola);

/// JSON of the record and, where one is named, of its template.
Salida OrdenInfo(const Argumentos& a, const Consola& consola);
/// CSV of the samples.
Salida OrdenSamples(const Argumentos& a, const Consola& consola);
/// CSV of the running phasors of all analog channels.
Salida OrdenPhasors(const Argumentos& a, const Consola& consola);
/// CSV of the symmetrical components of a three-phase group.
Salida OrdenSequences(const Argumentos& a, const Consola& consola);
/// The ASCII copy of a BINARY record. Files that are there are replaced.
Salida OrdenAscii(const Argumentos& a, const Consola& consola);
/// One PDF of the pages that the views print. A file that is there is replaced when the new one is whole.
Salida OrdenReport(const Argumentos& a, const Consola& consola);

}  // namespace veldix
