"""Opens a work file with the desktop program, estimates a regression and reads what a screen reader reads: the status line
of the main window, and the report line by line. All of it goes through AT-SPI; no key is pressed.

    lector_pantalla.py TABIRA FILE      FILE: Klein's data, 1920 to 1941
"""
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

ESPERA = 60  # seconds, since a busy machine and the sanitizers make it slow

SENTENCIAS = "SER SALARIOS = SALPRIV + SALPUB\nMC CONSUMO 1 BENEF BENEF(-1) SALARIOS"
NOMBRE_OCUPADO = "; otra vez\nESC CONSUMO = 1"

# Klein (1950) published the coefficients and their errors with three decimals; the rest follows from his data.
INFORME = """\
Variable Dep.: CONSUMO
Regresores   : 1,BENEF,BENEF(-1),SALARIOS
Muestra      : 1921 - 1941          Nº Observaciones     : 21

 Regresores      Coeficiente    Desv. Típica   Estadís. t   Prob>|t|
              1      16.236600       1.302698    12.46       0.0000
          BENEF       0.192934       0.091210     2.12       0.0495
      BENEF(-1)       0.089885       0.090648     0.99       0.3353
       SALARIOS       0.796219       0.039944    19.93       0.0000
Media Var. Dependiente:   53.9952  Des. Típ. Var. Depen.:    6.8609
Error Típico Regresión:    1.0255  Suma Cuadrados Resid.:   17.8794
R Cuadrado            :    0.9810  R Cuadrado Corregido :    0.9777
Logaritmo de Verosim. :  -28.1086  Criterio AIC         :    3.0580
Estadístico F(  3, 17):  292.7076  Prob > F             :    0.0000
Estadís. Durbin-Watson:    1.3675  Est. Autocorrelación :    0.3163
""".splitlines()


def visibles(nodo):
    """Every node shown below this one, as (role, name, node). One may go while it is looked at."""
    try:
        if not nodo.get_state_set().contains(Atspi.StateType.SHOWING):
            return
        yield nodo.get_role_name(), nodo.get_name(), nodo
        hijos = [nodo.get_child_at_index(i) for i in range(nodo.get_child_count())]
    except GLib.Error:
        return
    for hijo in hijos:
        if hijo:
            yield from visibles(hijo)


def programa():
    """The program as a reader finds it; None before it has come."""
    escritorio = Atspi.get_desktop(0)
    todos = [escritorio.get_child_at_index(i) for i in range(escritorio.get_child_count())]
    return next((p for p in todos if p and p.get_name() == "tabira"), None)


def esperar(rol, nombre):
    """The node of this role and name, once it is shown."""
    vistos = []
    limite = time.monotonic() + ESPERA
    while time.monotonic() < limite:
        try:
            vistos = list(visibles(programa()))
        except (GLib.Error, AttributeError):
            vistos = []
        for r, n, nodo in vistos:
            if (r, n) == (rol, nombre):
                return nodo
        time.sleep(0.1)
    sys.exit(f"no {rol} {nombre!r} among " + str([(r, n) for r, n, _ in vistos]))


def pulsar(nodo):
    """Presses a button or an entry. One that opens a window doesn't answer before that is closed."""
    Atspi.set_timeout(500, 0)
    try:
        Atspi.Action.do_action(nodo, 0)
    except GLib.Error:
        pass
    Atspi.set_timeout(ESPERA * 1000, 0)


def procesar(texto):
    pantalla = esperar("text", "Pantalla de edición")
    Atspi.EditableText.set_text_contents(pantalla, texto)
    Atspi.Text.add_selection(pantalla, 0, len(texto))
    # The entries of a menu that is closed are there for a reader, though they aren't shown.
    menu = esperar("menu item", "Proced.").get_child_at_index(0)
    entradas = [menu.get_child_at_index(i) for i in range(menu.get_child_count())]
    pulsar(next(e for e in entradas if e.get_name() == "Procesar"))


def lineas(documento):
    """The lines of a text, asked for one by one."""
    leidas, posicion = [], 0
    while posicion < Atspi.Text.get_character_count(documento):
        tramo = Atspi.Text.get_text_at_offset(documento, posicion, Atspi.TextBoundaryType.LINE_START)
        if tramo.end_offset <= posicion:
            sys.exit(f"no line at {posicion}")
        leidas.append(tramo.content.removesuffix("\n"))
        posicion = tramo.end_offset
    return leidas


def probar():
    Atspi.set_timeout(ESPERA * 1000, 0)
    esperar("label", "Anual 1920-1941 | Muestra 1920-1941 (22 de 22) | VSR SI | Lín 1, Col 1")
    procesar(SENTENCIAS)
    pregunta = esperar("push button", "Sí")
    esperar("label", "¿Desea ver la regresion?")
    esperar("label", "Procesando...")
    pulsar(pregunta)
    leidas = lineas(esperar("document frame", "Mínimos cuadrados ordinarios"))
    if leidas != INFORME:
        sys.exit("\n".join(["the report is read as"] + leidas))
    pulsar(esperar("menu item", "Salir"))
    esperar("label", "2 sentencias procesadas")
    procesar(NOMBRE_OCUPADO)
    aceptar = esperar("push button", "Aceptar")
    esperar("label", "Error en la generación de escalares")
    pulsar(aceptar)
    esperar("label", "Detenido en la línea 2: ESC CONSUMO = 1")
    # The coefficients are series too, which end the next sample; it stands out by its colours, and reads as ever.
    esperar("label", "Anual 1920-1941 | Muestra 1921-1924 (4 de 22) | VSR SI | Lín 2, Col 1")


proceso = subprocess.Popen(sys.argv[1:])
try:
    probar()
finally:
    proceso.kill()
    proceso.wait()
