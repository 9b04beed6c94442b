#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace veldix {

/// A field of a row: NULL, a number, or a text in UTF-8.
using ValorJet = std::variant<std::monostate, double, std::string>;

/// The rows of a table, held in memory, and a place among them: the first row when it is opened. Names of
/// fields match without regard to the case of ASCII letters.
class Recordset {
public:
    Recordset(std::vector<std::string> campos, std::vector<std::vector<ValorJet>> filas)
        : campos_(std::move(campos)), filas_(std::move(filas))
    {
    }

    /// Whether the place is behind the last row.
    bool Eof() const { return actual_ >= filas_.size(); }
    /// Both raise 3021 where there are no rows.
    void MoveFirst();
    void MoveLast();
    /// Raises 3021 behind the last row.
    void MoveNext();

    /// A field of the current row; NULL reads as the empty text. Raises 3021, 3265.
    std::string Texto(std::string_view campo) const;
    /// The same as a number. Raises 3021, 3265, 13 for a text that is none, the empty one of NULL too.
    double Numero(std::string_view campo) const;

private:
    const ValorJet& Campo(std::string_view campo) const;

    std::vector<std::string> campos_;
    std::vector<std::vector<ValorJet>> filas_;
    std::size_t actual_ = 0;
};

/// A database in Jet 3 or Jet 4 format (`.mdb`), read only. A damaged one ends in an error or in rows.
class BaseJet {
public:
    /// Raises 3044 where the folder is missing, 3024 where the file is, 3343 where it is no such database or
    /// cannot be read, 7 over 64 MiB.
    explicit BaseJet(const std::string& ruta);
    ~BaseJet();
    BaseJet(BaseJet&&) noexcept;
    BaseJet& operator=(BaseJet&&) noexcept;

    /// Names of the tables that are not the system's own, in the order of the catalog.
    std::vector<std::string> Tablas() const;

    /// All rows of a table, whose name matches as those of fields do, in their stored order, with the fields
    /// of 8, 16 and 32-bit integers, floating numbers and texts; those of other kinds are not among them.
    /// Raises 3265 where there is no such table, 3343 where it is damaged, 7 where it is out of all measure.
    Recordset AbreTabla(std::string_view nombre) const;

private:
    class Lector;
    std::unique_ptr<Lector> lector_;
};

}  // namespace veldix
