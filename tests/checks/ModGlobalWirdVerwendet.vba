'= Modul Allgemeines
Option Explicit
Global gKunde As String '! Deklarationen "Schlüsselwort "Global" wird verwendet."
Global a, b As Long '! Deklarationen '! Deklarationen
Global Const gMax = 10, gÄnderung$ = "Global " '! Deklarationen '! Deklarationen
Public gÖffentlich As Long: Global gHinten(1 To 2, 3) As Long '! Deklarationen
Global gErste As Long, _ '! Deklarationen
    gZweite As Long, _ '! Deklarationen
    gDritte As Collection '! Deklarationen
Private mGlobal As String, Globale As Long
' Global gAlt As Long
Rem Global gAlt As Long
Private mText As String: Rem Global gAlt As Long
Private Const cText = "x: Global y"
' Fortgesetzt: _
Global gKommentar As Long
Private Type Satz
    Global1 As Long
End Type
#If VBA7 Then
Global gGriff As LongPtr '! Deklarationen
#Else
Global gGriff As Long '! Deklarationen
#End If
Public Sub Arbeiten()
    ' Global gLokal
    Debug.Print "Global", mGlobal
End Sub
'= Modul Ohne
Public gPublik As Long
Dim mDim As Long
