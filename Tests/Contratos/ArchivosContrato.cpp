#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "Dobles/ArchivosDeMemoria.h"
#include "Dobles/CarpetaTemporal.h"
#include "Dobles/SinPrivilegios.h"
#include "ZorvePlatform/Posix/ArchivosPosix.h"

namespace zorve {
namespace {

using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

void exigir(bool bien) {
  if (!bien) throw std::runtime_error("the test could not set up its files");
}

/// The real file system below a folder of its own.
struct MundoPosix {
  dobles::CarpetaTemporal carpetaPropia;
  ArchivosPosix archivos;

  [[nodiscard]] std::string en(std::string const& relativa) const { return carpetaPropia.dentro(relativa); }
  void escribir(std::string const& relativa, std::string_view bytes) {
    carpetaPropia.escribir(relativa, bytes);
  }
  void carpeta(std::string const& relativa) { carpetaPropia.carpeta(relativa); }
  void enlazar(std::string const& relativa, std::string const& destino) {
    std::filesystem::create_symlink(destino, en(relativa));
  }
  void especial(std::string const& relativa) { exigir(::mkfifo(en(relativa).c_str(), 0600) == 0); }
  void quitar(std::string const& relativa) { std::filesystem::remove(en(relativa)); }
  void fecha(std::string const& relativa, std::int64_t segundos, std::int64_t nanos) {
    std::array<timespec, 2> tiempos{};
    tiempos.fill({.tv_sec = segundos, .tv_nsec = nanos});
    exigir(::utimensat(AT_FDCWD, en(relativa).c_str(), tiempos.data(), AT_SYMLINK_NOFOLLOW) == 0);
  }
};

/// The double, made to look the same.
struct MundoDeMemoria {
  dobles::ArchivosDeMemoria archivos;
  MundoDeMemoria() { archivos.carpeta("/m"); }

  [[nodiscard]] static std::string en(std::string const& relativa) { return "/m/" + relativa; }
  void escribir(std::string const& relativa, std::string_view bytes) {
    archivos.escribir(en(relativa), bytes);
  }
  void carpeta(std::string const& relativa) { archivos.carpeta(en(relativa)); }
  void enlazar(std::string const& relativa, std::string const& destino) {
    archivos.enlazar(en(relativa), destino);
  }
  void especial(std::string const& relativa) { archivos.especial(en(relativa)); }
  void quitar(std::string const& relativa) { archivos.quitar(en(relativa)); }
  void fecha(std::string const& relativa, std::int64_t segundos, std::int64_t nanos) {
    archivos.escribir(en(relativa), "",
                      Fecha{std::chrono::duration<double>{static_cast<double>(segundos) +
                                                          static_cast<double>(nanos) / 1e9}});
  }
};

template <class Mundo>
class ArchivosContrato : public ::testing::Test {
 protected:
  Mundo mundo;

  [[nodiscard]] std::string en(std::string const& relativa) const { return mundo.en(relativa); }
  int codigoAlAbrir(std::string const& ruta) {
    auto const abierto = mundo.archivos.abrir(ruta);
    return abierto ? 0 : abierto.error().codigo;
  }
  std::string leido(ArchivoAbierto& archivo, std::int64_t desde, std::size_t cuantos) {
    std::string bytes(cuantos, '?');
    auto const llegaron = archivo.leer(desde, bytes);
    return llegaron ? bytes.substr(0, *llegaron) : "!" + llegaron.error().descripcion;
  }
};

using Mundos = ::testing::Types<MundoPosix, MundoDeMemoria>;
TYPED_TEST_SUITE(ArchivosContrato, Mundos);

TYPED_TEST(ArchivosContrato, leeDesdeDondeSeLePide) {
  this->mundo.escribir("a", std::string{"cero\0uno", 8});
  auto const archivo = this->mundo.archivos.abrir(this->en("a"));
  ASSERT_TRUE(archivo);
  EXPECT_EQ(this->leido(**archivo, 0, 100), (std::string{"cero\0uno", 8}));
  EXPECT_EQ(this->leido(**archivo, 5, 2), "un");
  EXPECT_EQ(this->leido(**archivo, 5, 3), "uno");
  EXPECT_EQ(this->leido(**archivo, 5, 0), "");
}

TYPED_TEST(ArchivosContrato, alFinalYDetrasNoHayBytes) {
  this->mundo.escribir("a", "uno");
  auto const archivo = this->mundo.archivos.abrir(this->en("a"));
  ASSERT_TRUE(archivo);
  EXPECT_EQ(this->leido(**archivo, 3, 4), "");
  EXPECT_EQ(this->leido(**archivo, 1'000'000'000'000, 4), "");
}

TYPED_TEST(ArchivosContrato, unArchivoQueCreceDaLosBytesNuevos) {
  this->mundo.escribir("a", "uno");
  auto const archivo = this->mundo.archivos.abrir(this->en("a"));
  ASSERT_TRUE(archivo);
  this->mundo.escribir("a", "uno y dos");
  EXPECT_EQ((*archivo)->tamano(), 9);
  EXPECT_EQ(this->leido(**archivo, 3, 10), " y dos");
}

TYPED_TEST(ArchivosContrato, unArchivoQueEncogeTerminaAntes) {
  this->mundo.escribir("a", "uno y dos");
  auto const archivo = this->mundo.archivos.abrir(this->en("a"));
  ASSERT_TRUE(archivo);
  this->mundo.escribir("a", "u");
  EXPECT_EQ((*archivo)->tamano(), 1);
  EXPECT_EQ(this->leido(**archivo, 0, 10), "u");
  EXPECT_EQ(this->leido(**archivo, 4, 10), "");
}

TYPED_TEST(ArchivosContrato, unArchivoQueDesapareceSigueLegibleSiEstabaAbierto) {
  this->mundo.escribir("a", "uno");
  auto const archivo = this->mundo.archivos.abrir(this->en("a"));
  ASSERT_TRUE(archivo);
  this->mundo.quitar("a");
  EXPECT_EQ(this->leido(**archivo, 0, 10), "uno");
  EXPECT_EQ(this->codigoAlAbrir(this->en("a")), ENOENT);
}

TYPED_TEST(ArchivosContrato, loQueFaltaNoSeAbre) {
  EXPECT_EQ(this->codigoAlAbrir(this->en("nada")), ENOENT);
  EXPECT_EQ(this->codigoAlAbrir(this->en("nada/a")), ENOENT);
  EXPECT_EQ(this->codigoAlAbrir(""), ENOENT);
}

TYPED_TEST(ArchivosContrato, unArchivoNoEsUnaCarpetaDeOtros) {
  this->mundo.escribir("a", "uno");
  EXPECT_EQ(this->codigoAlAbrir(this->en("a/b")), ENOTDIR);
  EXPECT_EQ(this->mundo.archivos.atributos(this->en("a/b")).error().codigo, ENOTDIR);
}

TYPED_TEST(ArchivosContrato, unNulEnLaRutaNoLaAcorta) {
  this->mundo.escribir("a", "uno");
  auto const ruta = this->en("a") + std::string{"\0b", 2};
  EXPECT_EQ(this->codigoAlAbrir(ruta), ENOENT);
  EXPECT_EQ(this->mundo.archivos.atributos(ruta).error().codigo, ENOENT);
  EXPECT_EQ(this->mundo.archivos.listar(ruta).error().codigo, ENOENT);
}

TYPED_TEST(ArchivosContrato, unaCarpetaNoSeAbreComoArchivo) {
  this->mundo.carpeta("c");
  EXPECT_EQ(this->codigoAlAbrir(this->en("c")), EISDIR);
}

TYPED_TEST(ArchivosContrato, loEspecialFallaEnElActoYLoDice) {
  this->mundo.especial("fifo");
  auto const abierto = this->mundo.archivos.abrir(this->en("fifo"));
  ASSERT_FALSE(abierto);
  EXPECT_EQ(abierto.error().descripcion, "Not a regular file");
}

TYPED_TEST(ArchivosContrato, alAbrirSeSiguenLosEnlaces) {
  this->mundo.escribir("a", "uno");
  this->mundo.carpeta("c");
  this->mundo.especial("fifo");
  this->mundo.enlazar("aArchivo", "a");
  this->mundo.enlazar("aCarpeta", this->en("c"));
  this->mundo.enlazar("aFifo", "fifo");
  this->mundo.enlazar("aNada", "nada");
  this->mundo.enlazar("bucle", "bucle");
  EXPECT_EQ(this->codigoAlAbrir(this->en("aArchivo")), 0);
  EXPECT_EQ(this->codigoAlAbrir(this->en("aCarpeta")), EISDIR);
  EXPECT_EQ(this->codigoAlAbrir(this->en("aFifo")), EINVAL);
  EXPECT_EQ(this->codigoAlAbrir(this->en("aNada")), ENOENT);
  EXPECT_EQ(this->codigoAlAbrir(this->en("bucle")), ELOOP);
}

TYPED_TEST(ArchivosContrato, losAtributosSonDeLaEntradaMisma) {
  this->mundo.escribir("a", "cuatro");
  this->mundo.carpeta("c");
  this->mundo.especial("fifo");
  this->mundo.enlazar("aCarpeta", "c");
  this->mundo.enlazar("roto", "nada");
  auto const clase = [this](std::string const& nombre) {
    return this->mundo.archivos.atributos(this->en(nombre)).value().clase;
  };
  EXPECT_EQ(clase("a"), ClaseDeArchivo::regular);
  EXPECT_EQ(clase("c"), ClaseDeArchivo::carpeta);
  EXPECT_EQ(clase("fifo"), ClaseDeArchivo::otra);
  EXPECT_EQ(clase("aCarpeta"), ClaseDeArchivo::enlace);
  EXPECT_EQ(clase("roto"), ClaseDeArchivo::enlace);
  EXPECT_EQ(this->mundo.archivos.atributos(this->en("a"))->tamanoBytes, 6);
  EXPECT_EQ(this->mundo.archivos.atributos(this->en("roto"))->tamanoBytes, 4);
  EXPECT_EQ(this->mundo.archivos.atributos(this->en("nada")).error().codigo, ENOENT);
}

TYPED_TEST(ArchivosContrato, laFechaConservaSusFracciones) {
  this->mundo.escribir("a", "");
  this->mundo.fecha("a", 1'700'000'000, 250'000'000);
  EXPECT_EQ(this->mundo.archivos.atributos(this->en("a"))->mtime,
            Fecha{std::chrono::duration<double>{1'700'000'000.25}});
  this->mundo.fecha("a", -10, 500'000'000);
  EXPECT_EQ(this->mundo.archivos.atributos(this->en("a"))->mtime, Fecha{std::chrono::duration<double>{-9.5}});
}

TYPED_TEST(ArchivosContrato, listaLosNombresTambienLosOcultosYLosQueNoSonUtf8) {
  this->mundo.escribir("c/a", "");
  this->mundo.escribir("c/.oculto", "");
  this->mundo.escribir("c/sub/dentro", "");
  this->mundo.especial("c/fifo");
  this->mundo.escribir("c/con\nsalto", "");
#if !defined(__APPLE__)
  this->mundo.escribir("c/\xff\xfe", "");
  EXPECT_THAT(this->mundo.archivos.listar(this->en("c")).value(),
              UnorderedElementsAre("a", ".oculto", "sub", "fifo", "con\nsalto", "\xff\xfe"));
#else
  EXPECT_THAT(this->mundo.archivos.listar(this->en("c")).value(),
              UnorderedElementsAre("a", ".oculto", "sub", "fifo", "con\nsalto"));
#endif
}

TYPED_TEST(ArchivosContrato, unaCarpetaVaciaNoTieneNombres) {
  this->mundo.carpeta("c");
  EXPECT_THAT(this->mundo.archivos.listar(this->en("c")).value(), IsEmpty());
}

TYPED_TEST(ArchivosContrato, alListarSeSiguenLosEnlaces) {
  this->mundo.escribir("c/a", "");
  this->mundo.enlazar("otra", "c");
  EXPECT_THAT(this->mundo.archivos.listar(this->en("otra")).value(), UnorderedElementsAre("a"));
  EXPECT_EQ(this->codigoAlAbrir(this->en("otra/a")), 0);
}

TYPED_TEST(ArchivosContrato, soloUnaCarpetaSeLista) {
  this->mundo.escribir("a", "");
  this->mundo.especial("fifo");
  EXPECT_EQ(this->mundo.archivos.listar(this->en("a")).error().codigo, ENOTDIR);
  EXPECT_EQ(this->mundo.archivos.listar(this->en("fifo")).error().codigo, ENOTDIR);
  EXPECT_EQ(this->mundo.archivos.listar(this->en("nada")).error().codigo, ENOENT);
}

TYPED_TEST(ArchivosContrato, existeSigueLosEnlaces) {
  this->mundo.escribir("a", "");
  this->mundo.especial("fifo");
  this->mundo.enlazar("aArchivo", "a");
  this->mundo.enlazar("aFifo", "fifo");
  this->mundo.enlazar("aNada", "nada");
  for (auto const* const nombre : {"a", "fifo", "aArchivo", "aFifo"}) {
    EXPECT_TRUE(this->mundo.archivos.existe(this->en(nombre))) << nombre;
  }
  this->mundo.enlazar("bucle", "bucle");
  this->mundo.enlazar("uno", "otro");
  this->mundo.enlazar("otro", "uno");
  for (auto const* const nombre : {"nada", "nada/b", "a/b", "aNada", "bucle", "bucle/b", "uno"}) {
    EXPECT_FALSE(this->mundo.archivos.existe(this->en(nombre))) << nombre;
  }
  EXPECT_FALSE(this->mundo.archivos.existe(this->en("a") + std::string{"\0b", 2}));
}

TEST(ArchivosPosix, sinPermisoNoSeAbreNiSeListaNiHayNadaDetras) {
  MundoPosix mundo;
  mundo.escribir("a", "uno");
  mundo.escribir("c/b", "dos");
  std::filesystem::permissions(mundo.en("a"), std::filesystem::perms::none);
  std::filesystem::permissions(mundo.en("c"), std::filesystem::perms::none);
  dobles::SinPrivilegios const sinPrivilegios;
  EXPECT_EQ(mundo.archivos.abrir(mundo.en("a")).error().codigo, EACCES);
  EXPECT_EQ(mundo.archivos.listar(mundo.en("c")).error().codigo, EACCES);
  EXPECT_EQ(mundo.archivos.atributos(mundo.en("c/b")).error().codigo, EACCES);
  EXPECT_TRUE(mundo.archivos.existe(mundo.en("a")));
  EXPECT_FALSE(mundo.archivos.existe(mundo.en("c/b")));
}

TEST(ArchivosPosix, unNombreDemasiadoLargoNoExiste) {
  MundoPosix mundo;
  EXPECT_FALSE(mundo.archivos.existe(mundo.en(std::string(300, 'x'))));
  std::string honda = mundo.en("a");
  while (honda.size() < 5000) honda += "/a";
  EXPECT_FALSE(mundo.archivos.existe(honda));
}

TEST(ArchivosPosix, unSocketYUnDispositivoNoSonArchivos) {
  MundoPosix mundo;
  int const socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un direccion{};
  direccion.sun_family = AF_UNIX;
  mundo.en("s").copy(direccion.sun_path, sizeof direccion.sun_path - 1);
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the sockets API asks for it
  exigir(::bind(socket, reinterpret_cast<sockaddr const*>(&direccion), sizeof direccion) == 0);
  EXPECT_FALSE(mundo.archivos.abrir(mundo.en("s")));
  EXPECT_FALSE(mundo.archivos.abrir("/dev/zero"));
  EXPECT_FALSE(mundo.archivos.abrir("/dev/tty"));
  EXPECT_EQ(mundo.archivos.atributos("/dev/zero")->clase, ClaseDeArchivo::otra);
  ::close(socket);
}

TEST(ArchivosDeMemoria, losFallosLleganDondeSePiden) {
  dobles::ArchivosDeMemoria archivos;
  archivos.escribir("/c/a", "0123456789");
  archivos.fallarLectura("/c/a", 2, EIO);
  auto const archivo = archivos.abrir("/c/a").value();
  std::array<char, 4> destino{};
  EXPECT_EQ(archivo->leer(0, destino), 4U);
  EXPECT_EQ(archivo->leer(4, destino).error().codigo, EIO);
  archivos.fallarTamano("/c/a", EIO);
  archivos.fallarAlAbrir("/c/a", EACCES);
  archivos.fallarAtributos("/c/a", EPERM);
  archivos.fallarAlListar("/c", EMFILE);
  EXPECT_EQ(archivo->tamano().error().codigo, EIO);
  EXPECT_EQ(archivos.abrir("/c/a").error().codigo, EACCES);
  EXPECT_EQ(archivos.atributos("/c/a").error().codigo, EPERM);
  EXPECT_EQ(archivos.listar("/c").error().codigo, EMFILE);
  EXPECT_THAT(archivos.abiertos(), ::testing::ElementsAre("/c/a", "/c/a"));
}

TEST(ArchivosDeMemoria, lasLecturasSeAcortanYSeAnotan) {
  dobles::ArchivosDeMemoria archivos;
  archivos.escribir("/a", "0123456789");
  archivos.lecturasDeHasta(3);
  archivos.antesDeLeer("/a", [&](std::size_t cual) {
    if (cual == 2) archivos.escribir("/a", "0");
  });
  auto const archivo = archivos.abrir("/a").value();
  std::array<char, 8> destino{};
  EXPECT_EQ(archivo->leer(0, destino), 3U);
  EXPECT_EQ(archivo->leer(3, destino), 0U);
  EXPECT_THAT(archivos.lecturas(), ::testing::ElementsAre(dobles::ArchivosDeMemoria::Lectura{"/a", 0, 8},
                                                          dobles::ArchivosDeMemoria::Lectura{"/a", 3, 8}));
}

}  // namespace
}  // namespace zorve
