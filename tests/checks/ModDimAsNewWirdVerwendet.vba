'= Modul Sammlungen
Option Explicit
Private mKunden As New Collection '! Deklarationen "Dim ... As New ..."
Dim mÄnderungen As New Collection, mZähler As Long, mAlte As New Collection '! Deklarationen '! Deklarationen
Private mNew As Collection, mNewName As String
Private Const cText = " As New Collection"
' Dim x As New Collection
Public gFortgesetzt As _
    New Collection '! Deklarationen
Public Sub Füllen()
    Dim colNeu As New Collection '! Füllen
    Static colFest As _
        New Collection '! Füllen
    Dim colAlt As Collection, colZweite As New Collection '! Füllen
    Set colAlt = New Collection
    Dim s As String: s = " As New Collection" ' As New Collection
    Dim lngAnzahl As Long ' As New
    Rem Dim x As New Collection
    s = "x": Rem Dim x As New Collection
    ' Dim x As _
      New Collection
    If TypeOf colAlt Is Collection Then Set colNeu = New Collection
    Debug.Print "'", colNeu.Count: Dim colSpät As New Collection '! Füllen
End Sub
'= Klasse Lager
Private mBestand As Collection
Private Sub Class_Initialize()
    Set mBestand = New _
        Collection
    Dim colHier As New Collection: Dim colDort As New Collection '! Class_Initialize '! Class_Initialize
End Sub
