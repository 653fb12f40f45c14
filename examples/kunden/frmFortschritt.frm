VERSION 5.00
Begin {C62A69F0-16DC-11CE-9E98-00AA00574A4F} frmFortschritt 
   Caption         =   "Fortschritt"
   ClientHeight    =   1680
   ClientLeft      =   45
   ClientTop       =   390
   ClientWidth     =   4710
   OleObjectBlob   =   "frmFortschritt.frx":0000
   StartUpPosition =   1  'Fenstermitte
End
Attribute VB_Name = "frmFortschritt"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

' Fenster mit Balken und Abbruch

Public Event Abbrechen()

Private Const BREITE_BALKEN As Single = 204

Private mdatBeginn As Date
Private mdblAnteil As Double

Private Sub UserForm_Initialize()
    On Error Resume Next
    mdatBeginn = Now
    Me.lblBalken.Width = 0
    Me.lblRest.Caption = vbNullString
End Sub

Private Sub UserForm_QueryClose(Cancel As Integer, CloseMode As Integer)
    On Error Resume Next
    If CloseMode = 0 Then
        Cancel = True
        RaiseEvent Abbrechen
    End If
End Sub

Private Sub cmdAbbrechen_Click()
    RaiseEvent Abbrechen
End Sub

Public Property Let Titel(ByVal strWert As String)
    On Error Resume Next
    Me.Caption = strWert
End Property

Public Property Get Anteil() As Double
    On Error Resume Next
    Anteil = mdblAnteil
End Property

Public Property Let Anteil(ByVal dblWert As Double)
    On Error Resume Next

    If dblWert < 0 Then dblWert = 0
    If dblWert > 1 Then dblWert = 1
    mdblAnteil = dblWert
    Me.lblBalken.Width = BREITE_BALKEN * dblWert
    Me.lblProzent.Caption = Format$(dblWert, "0 %")
    Me.lblRest.Caption = RestText()
    Me.Repaint
End Property

Private Function RestText() As String
    Dim lngSekunden As Long

    On Error Resume Next

    If mdblAnteil < 0.05 Then Exit Function
    lngSekunden = DateDiff("s", mdatBeginn, Now) * (1 - mdblAnteil) / mdblAnteil
    Select Case lngSekunden
        Case 0
            RestText = vbNullString
        Case 1 To 59
            RestText = "noch " & lngSekunden & " Sekunden"
        Case Else
            RestText = "noch " & lngSekunden \ 60 + 1 & " Minuten"
    End Select
End Function
