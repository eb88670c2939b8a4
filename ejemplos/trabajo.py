#!/usr/bin/env python3
"""Lee un archivo de trabajo (*.TR2): sus series y una matriz.

    python3 trabajo.py FICHERO.TR2

No necesita más que Python 3: el archivo es una base de datos SQLite.
"""
import sqlite3
import struct
import sys

base = sqlite3.connect(f"file:{sys.argv[1]}?mode=ro", uri=True)
series = [codigo for (codigo,) in base.execute("SELECT codigo FROM series WHERE codigo <> '' ORDER BY lugar")]
print("Series:", " ".join(series))
periodos = base.execute("SELECT periodo FROM observaciones ORDER BY fila").fetchall()
print(f"Períodos: {periodos[0][0]} a {periodos[-1][0]}")
for codigo, filas, columnas, datos in base.execute("SELECT codigo, filas, columnas, datos FROM matrices ORDER BY lugar"):
    # 8 bytes cada elemento, por filas, el byte más alto primero.
    elementos = struct.unpack(f">{filas * columnas}d", datos)
    print(f"{codigo}: {filas} x {columnas}, primer elemento {elementos[0]:.4f}")
