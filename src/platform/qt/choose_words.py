"""Takes from the words of Qt in one language those that the program shows: choose_words.py LCONVERT ALL.qm CHOSEN.qm"""

import subprocess
import sys
import xml.etree.ElementTree as xml

# Message boxes, file dialogs, context menus, and what screen readers are told.
CONTEXTS = {"QAbstractFileIconProvider", "QAccessibleActionInterface", "QApplication", "QComboBox", "QDialog",
            "QDialogButtonBox", "QFileDialog", "QFileSystemModel", "QGuiApplication", "QLineEdit", "QMessageBox",
            "QPlatformTheme", "QScrollBar", "QShortcut", "QUnicodeControlCharacterMenu", "QWidget",
            "QWidgetTextControl"}

lconvert, source, target = sys.argv[1:]
text = subprocess.run([lconvert, "-i", source, "-of", "ts"], check=True, stdout=subprocess.PIPE).stdout
words = xml.fromstring(text)
for context in words.findall("context"):
    if context.findtext("name") not in CONTEXTS:
        words.remove(context)
subprocess.run([lconvert, "-if", "ts", "-i", "-", "-of", "qm", "-o", target], check=True,
               input=xml.tostring(words, encoding="utf-8"))
