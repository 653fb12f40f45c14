'= RequireDeclaration    '! Extras / Optionen / Editor "Variablendeklaration erforderlich: fehlt"
'= Modul Startbildschirm
Option Compare Database
' The finding belongs to the editor: it comes once, however many modules lack Option Explicit.
Public Sub Öffnen()
    DoCmd.OpenForm "frm_Übersicht"
End Sub
'= Klasse Gerät
Private mName As String
Public Property Get Name() As String
    Name = mName
End Property
'= Modul MitOptionExplicit
Option Compare Database
Option Explicit
