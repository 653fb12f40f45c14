'= Modul Schnittstelle
Option Explicit
Private Declare PtrSafe Sub CopyMemory Lib "kernel32" (Ziel As Any, Quelle As Any, ByVal Länge As Long) '! Deklarationen "'As Any'" '! Deklarationen
Private Declare PtrSafe Function SendMessage Lib "user32" (ByVal hWnd As LongPtr, _
    ByVal wMsg As Long, _
    lParam As Any) As Long '! Deklarationen
Private Declare PtrSafe Function Abfragen Lib "winspool" (pDaten As _
    Any, ByVal lAny As Long) As Long '! Deklarationen
Private mAny As Long, AnyWert As Long
Private Const cHinweis As String = "Parameter As Any"
' Declare Sub Alt Lib "kernel32" (x As Any)
Rem Declare Sub Alt Lib "kernel32" (x As Any)
Private mÜbrig As Long: Rem x As Any
' Fortgesetzter Kommentar: _
  x As Any
#If VBA7 Then
Private Declare PtrSafe Sub Leeren Lib "kernel32" (Ziel As Any) ' x As Any '! Deklarationen
#Else
Private Declare Sub Leeren Lib "kernel32" (Ziel As Any) '! Deklarationen
#End If
Public Sub Kopieren()
    ' Any As Any: behind the declarations nothing is looked at.
    Debug.Print "x As Any"
End Sub
'= Klasse NurProzeduren
Public Sub Beliebig(ByVal Wert As Variant)
    Dim AnyText As String
    AnyText = " As Any"
End Sub
