#!/usr/bin/env python3
"""Estima con tabira-lote y lee la regresión de sus sucesos.

    python3 sucesos.py [RUTA DE tabira-lote]

Junto a klein.csv y klein.txt. No necesita más que Python 3.
"""
import json
import os
import subprocess
import sys

programa = sys.argv[1] if len(sys.argv) > 1 else "tabira-lote"
aqui = os.path.dirname(os.path.abspath(__file__))
orden = [programa, "--json", "--tipo", "anual:1920:1941", "--importar", "klein.csv", "--procesar", "klein.txt"]
corrida = subprocess.run(orden, cwd=aqui, capture_output=True, text=True, encoding="utf-8")
for linea in corrida.stdout.splitlines():
    suceso = json.loads(linea)
    if suceso["suceso"] == "parada":
        sys.exit(f"Detenido en la línea {suceso['linea']}: {suceso['sentencia']}")
    if suceso["suceso"] != "regresion":
        continue
    print(f"{suceso['dependiente']}, {suceso['observaciones']} observaciones")
    for x in suceso["regresores"]:
        print(f"{x['codigo']:>12}{x['coeficiente']:12.4f}{x['desviacion']:12.4f}")
    print(f"{'R2':>12}{suceso['estadisticos']['R Cuadrado']:12.4f}")
