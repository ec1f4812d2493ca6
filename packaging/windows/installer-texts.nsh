; The installer's languages, and what it says in them beside NSIS' own texts.
!macro Texts language newer other written inUse notAlone
    !insertmacro MUI_LANGUAGE ${language}
    LangString NewerInstalled ${LANG_${language}} "${newer}"
    LangString OtherPackage ${LANG_${language}} "${other}"
    LangString NotWritten ${LANG_${language}} "${written}"
    LangString InUse ${LANG_${language}} "${inUse}"
    LangString NotAlone ${LANG_${language}} "${notAlone}"
!macroend

!insertmacro Texts English \
    "A newer version of ${NAME} is installed. Nothing has been changed." \
    "${NAME} was installed by its MSI package. Remove that first. Nothing has been changed." \
    "The files cannot be written. Nothing has been changed." \
    "${NAME} cannot be ended, or its files are in use. Nothing has been changed." \
    "${NAME} is just being installed or removed by another program. Nothing has been changed."
!insertmacro Texts German \
    "Eine neuere Version von ${NAME} ist installiert. Es wurde nichts geändert." \
    "${NAME} wurde mit dem MSI-Paket installiert. Entfernen Sie zuerst dieses. Es wurde nichts geändert." \
    "Die Dateien können nicht geschrieben werden. Es wurde nichts geändert." \
    "${NAME} lässt sich nicht beenden, oder seine Dateien werden benutzt. Es wurde nichts geändert." \
    "${NAME} wird gerade von einem anderen Programm installiert oder entfernt. Es wurde nichts geändert."
!insertmacro Texts French \
    "Une version plus récente de ${NAME} est installée. Rien n'a été modifié." \
    "${NAME} a été installé par son paquet MSI. Supprimez d'abord celui-ci. Rien n'a été modifié." \
    "Impossible d'écrire les fichiers. Rien n'a été modifié." \
    "Impossible d'arrêter ${NAME}, ou ses fichiers sont en cours d'utilisation. Rien n'a été modifié." \
    "${NAME} est en cours d'installation ou de suppression par un autre programme. Rien n'a été modifié."
!insertmacro Texts Spanish \
    "Hay instalada una versión más reciente de ${NAME}. No se ha cambiado nada." \
    "${NAME} se instaló con su paquete MSI. Quite primero ese paquete. No se ha cambiado nada." \
    "No se pueden escribir los archivos. No se ha cambiado nada." \
    "No se puede cerrar ${NAME}, o sus archivos están en uso. No se ha cambiado nada." \
    "Otro programa está instalando o quitando ${NAME} en este momento. No se ha cambiado nada."
!insertmacro Texts SimpChinese \
    "已安装较新版本的 ${NAME}。未作任何更改。" \
    "${NAME} 是通过 MSI 安装包安装的。请先将其卸载。未作任何更改。" \
    "无法写入文件。未作任何更改。" \
    "无法结束 ${NAME}，或其文件正在使用中。未作任何更改。" \
    "另一个程序正在安装或卸载 ${NAME}。未作任何更改。"
!insertmacro Texts Japanese \
    "新しいバージョンの ${NAME} がインストールされています。何も変更されていません。" \
    "${NAME} は MSI パッケージでインストールされています。先にそれを削除してください。何も変更されていません。" \
    "ファイルを書き込めません。何も変更されていません。" \
    "${NAME} を終了できないか、ファイルが使用中です。何も変更されていません。" \
    "別のプログラムが ${NAME} をインストールまたは削除しています。何も変更されていません。"
!insertmacro Texts Arabic \
    "يوجد إصدار أحدث من ${NAME} مثبّت. لم يتغيّر شيء." \
    "ثُبّت ${NAME} بواسطة حزمة MSI. أزِلها أولاً. لم يتغيّر شيء." \
    "تعذّرت كتابة الملفات. لم يتغيّر شيء." \
    "تعذّر إنهاء ${NAME}، أو أن ملفاته قيد الاستخدام. لم يتغيّر شيء." \
    "يقوم برنامج آخر الآن بتثبيت ${NAME} أو إزالته. لم يتغيّر شيء."
